#include "host/editor/keymap_text.h"

#include <algorithm>

namespace tavi {

namespace {

const QString kItems = QStringLiteral("items");
constexpr char kFirstDash[] = "  - ";

QByteArray Written(const FieldValue& value, Quotes quotes) {
  switch (value.form) {
    case FieldValue::Form::kText: return TextScalar(value.text, quotes);
    case FieldValue::Form::kPlain: return PlainScalar(value.text, quotes);
    case FieldValue::Form::kSource: break;
  }
  return value.text.toUtf8();
}

QByteArray Written(const NamedValue& field, bool is_json) {
  const QByteArray name = field.name.toUtf8();
  const Quotes quotes = is_json ? Quotes::kDouble : Quotes::kAsNeeded;
  return (is_json ? '"' + name + '"' : name) + ": " + Written(field.value, quotes);
}

QByteArray InBraces(const QVector<NamedValue>& fields, bool is_json) {
  QByteArray item;
  for (const NamedValue& field : fields) item += (item.isEmpty() ? "{" : ", ") + Written(field, is_json);
  return item + '}';
}

}  // namespace

KeymapText::KeymapText(const QByteArray& text, const tavikeymapmanager::KeymapOutline& outline)
    : text_(text), outline_(outline), lines_(text) {}

QByteArray KeymapText::Replaced(const TextRange& range, const QByteArray& by) const {
  return QByteArray(text_).replace(range.begin, range.Length(), by);
}

// An absent value goes right after the colon, or after the space that follows it.
QByteArray KeymapText::WithValue(const TextRange& place, const QByteArray& written) const {
  const bool needs_space = place.Length() == 0 && text_[place.begin - 1] == ':';
  return Replaced(place, needs_space ? ' ' + written : written);
}

bool KeymapText::HasQuotedNames(const tavikeymapmanager::RecordOutline& record) const {
  return !record.fields.isEmpty() && text_[record.fields.first().name_range.begin] == '"';
}

bool KeymapText::IsFirstOnLine(int position) const { return lines_.SkipSpaces(lines_.Begin(position)) == position; }

// As many spaces as there are characters before `position` on its line.
QByteArray KeymapText::IndentationOf(int position) const {
  const int begin = lines_.Begin(position);
  return IsFirstOnLine(position) ? text_.mid(begin, position - begin) : QByteArray(position - begin, ' ');
}

Quotes KeymapText::QuotesOf(const TextRange& scalar) const {
  const char first = scalar.Length() == 0 ? '\0' : text_[scalar.begin];
  if (first == '"') return Quotes::kDouble;
  return first == '\'' ? Quotes::kSingle : Quotes::kAsNeeded;
}

// ---- Fields

QByteArray KeymapText::WithField(int item, const QString& name, const FieldValue& value,
                                 const QStringList& order) const {
  const ItemOutline& outline = outline_.items[item];
  const FieldOutline* field = outline.Find(name);
  if (field == nullptr) return WithNewField(outline, {name, value}, order);
  return WithValue(field->value, Written(value, QuotesOf(field->value)));
}

QByteArray KeymapText::WithPair(int item, const QString& name, const QPointF& pair, const QStringList& order) const {
  const FieldOutline* field = outline_.items[item].Find(name);
  if (field == nullptr || field->entries.size() != 2) {
    return WithField(item, name, {QString::fromUtf8(PairText(pair.x(), pair.y())), FieldValue::Form::kSource}, order);
  }
  QByteArray text = text_;
  const double numbers[] = {pair.x(), pair.y()};
  for (const int i : {1, 0}) {  // from the end, so that earlier positions stay valid
    const TextRange& place = field->entries[i];
    const QByteArray written = NumberText(numbers[i]);
    if (NumberText(Slice(place).toDouble()) != written) text.replace(place.begin, place.Length(), written);
  }
  return text;
}

int KeymapText::FieldBefore(const ItemOutline& item, const QString& name, const QStringList& order) const {
  const int limit = order.indexOf(name);
  int best = 0;
  int best_order = -1;
  for (int i = 0; i < item.fields.size(); ++i) {
    const int place = order.indexOf(item.fields[i].name);
    if (place < best_order || place >= limit) continue;
    best = i;
    best_order = place;
  }
  return best;
}

QByteArray KeymapText::WithNewField(const ItemOutline& item, const NamedValue& field, const QStringList& order) const {
  const FieldOutline& before = item.fields[FieldBefore(item, field.name, order)];
  const QByteArray written = Written(field, HasQuotedNames(item));
  const bool has_own_line = IsFirstOnLine(before.name_range.begin);
  const QByteArray new_line = lines_.Break() + IndentationOf(before.name_range.begin);
  if (!item.in_braces) return Inserted(lines_.End(before.value.end), new_line + written);
  return Inserted(before.value.end, (has_own_line ? ',' + new_line : QByteArray(", ")) + written);
}

QByteArray KeymapText::WithoutField(int item, const QString& name) const {
  const ItemOutline& outline = outline_.items[item];
  const FieldOutline* field = outline.Find(name);
  if (field == nullptr) return text_;
  const int index = static_cast<int>(field - outline.fields.constData());
  if (outline.in_braces) return WithoutFieldInBraces(outline, index);
  // The first field shares its line with the dash, and the next one moves up to it.
  if (index == 0) return Replaced({field->name_range.begin, outline.fields.value(1).name_range.begin}, {});
  return Replaced({lines_.Begin(field->name_range.begin), lines_.Next(field->value.end)}, {});
}

QByteArray KeymapText::WithoutFieldInBraces(const tavikeymapmanager::RecordOutline& record, int field) const {
  const QVector<FieldOutline>& fields = record.fields;
  const bool is_last = field == fields.size() - 1;
  if (!is_last) return Replaced({fields[field].name_range.begin, fields[field + 1].name_range.begin}, {});
  const int begin = field == 0 ? fields[0].name_range.begin : fields[field - 1].value.end;
  return Replaced({begin, fields[field].value.end}, {});
}

// ---- Lines of items

KeymapText::TextRange KeymapText::LinesOf(const ItemOutline& item) const {
  const int deep = item.fields.isEmpty() ? 0 : item.fields.first().name_range.begin - lines_.Begin(item.dash);
  return {lines_.Begin(item.dash), EndWithComments(item.range.end, deep)};
}

int KeymapText::EndWithComments(int position, int deep) const {
  int end = lines_.End(position);
  for (int next = lines_.Next(end); next < text_.size() && lines_.IsComment(next); next = lines_.Next(next)) {
    if (lines_.Indentation(next) < deep) break;
    end = lines_.End(next);
  }
  return end;
}

int KeymapText::CommentsAbove(const ItemOutline& item) const {
  const int dash_line = lines_.Begin(item.dash);
  int begin = dash_line;
  while (begin > 0) {
    const int above = lines_.Above(begin);
    if (!lines_.IsComment(above) || lines_.Indentation(above) < item.dash - dash_line) break;
    begin = above;
  }
  return begin;
}

bool KeymapText::HasBlankAbove(const ItemOutline& item) const {
  const int begin = CommentsAbove(item);
  return begin > 0 && lines_.IsBlank(lines_.Above(begin));
}

KeymapText::TextRange KeymapText::WithBlank(TextRange lines) const {
  const bool is_last = lines.end == text_.size();
  const bool has_blank_below = !is_last && lines_.IsBlank(lines.end);
  const int above = lines.begin == 0 ? 0 : lines_.Above(lines.begin);
  const bool has_blank_above = lines.begin > 0 && lines_.IsBlank(above);
  const int begin_of_list = outline_.items.isEmpty() ? 0 : lines_.Begin(outline_.items.first().dash);
  if (has_blank_below && (has_blank_above || lines.begin <= begin_of_list)) lines.end = lines_.Next(lines.end);
  if (is_last && has_blank_above) lines.begin = above;
  return lines;
}

QByteArray KeymapText::WithoutItem(int item) const {
  if (outline_.items_in_brackets) return WithoutItemInBrackets(item);
  const ItemOutline& outline = outline_.items[item];
  TextRange lines = LinesOf(outline);
  lines.end = lines_.Next(lines.end);
  const bool has_item_below =
      item + 1 < outline_.items.size() && lines_.Begin(outline_.items[item + 1].dash) == lines.end;
  if (!has_item_below) lines.begin = CommentsAbove(outline);
  return Replaced(WithBlank(lines), {});
}

QByteArray KeymapText::WithoutItemInBrackets(int item) const {
  const ItemOutline& outline = outline_.items[item];
  if (item + 1 < outline_.items.size()) {
    return Replaced({outline.range.begin, outline_.items[item + 1].range.begin}, {});
  }
  if (item == 0) return Replaced(outline.range, {});
  const int end_before = outline_.items[item - 1].range.end;
  const int comma = lines_.SkipComments(end_before);
  const bool has_comment = text_.mid(end_before, outline.range.begin - end_before).contains('#');
  QByteArray text = Replaced({has_comment ? outline.range.begin : comma + 1, outline.range.end}, {});
  return text.remove(comma, 1);
}

// ---- New items

QByteArray KeymapText::WithItem(const QVector<NamedValue>& fields) const {
  if (outline_.items.isEmpty()) return FirstItem(fields);
  const ItemOutline& last = outline_.items.last();
  const bool is_json = HasQuotedNames(last);
  if (outline_.items_in_brackets) return Inserted(last.range.end, SeparatorBehind(last) + InBraces(fields, is_json));
  const bool has_blank = !last.in_braces && (outline_.items.size() == 1 || HasBlankAbove(last));
  const QByteArray entry =
      last.in_braces ? IndentationOf(last.dash) + "- " + InBraces(fields, is_json) : EntryInBlock(fields);
  return Inserted(LinesOf(last).end, (has_blank ? lines_.Break() : QByteArray()) + lines_.Break() + entry);
}

// In the columns of the last item.
QByteArray KeymapText::EntryInBlock(const QVector<NamedValue>& fields) const {
  const ItemOutline& last = outline_.items.last();
  const int first = last.fields.first().name_range.begin;
  const bool is_beside = lines_.Begin(first) == lines_.Begin(last.dash);
  const int gap = is_beside ? first - last.dash - 1 : 1;
  const QByteArray indentation = IndentationOf(last.dash);
  QByteArray entry;
  for (const NamedValue& field : fields) {
    const QByteArray front =
        entry.isEmpty() ? '-' + QByteArray(gap, ' ') : lines_.Break() + indentation + QByteArray(gap + 1, ' ');
    entry += front + Written(field, HasQuotedNames(last));
  }
  return indentation + entry;
}

// For a file whose list is empty or absent.
QByteArray KeymapText::FirstItem(const QVector<NamedValue>& fields) const {
  const bool is_json = HasQuotedNames(outline_.file);
  const FieldOutline* list = outline_.file.Find(kItems);
  if (outline_.file.in_braces) {
    const QByteArray item = '[' + InBraces(fields, is_json) + ']';
    if (list != nullptr) return WithValue(list->value, item);
    const QByteArray name = is_json ? "\"items\": " : "items: ";
    return Inserted(outline_.file.fields.last().value.end, ", " + name + item);
  }
  QByteArray entry;
  for (const NamedValue& field : fields) {
    entry += lines_.Break() + (entry.isEmpty() ? kFirstDash : "    ") + Written(field, false);
  }
  if (list != nullptr) {
    const int end_of_line = lines_.End(list->value.end);
    const int colon = text_.indexOf(':', list->name_range.end);
    const QByteArray rest = text_.mid(list->value.end, end_of_line - list->value.end);  // a comment, or nothing
    return Replaced({colon + 1, end_of_line}, rest + entry);
  }
  const bool ends_in_break = lines_.Begin(text_.size()) == text_.size();
  const QByteArray part = "items:" + entry;
  return text_ + (ends_in_break ? part + lines_.Break() : lines_.Break() + part);
}

QByteArray KeymapText::SeparatorBehind(const ItemOutline& item) const {
  if (!IsFirstOnLine(item.range.begin)) return ", ";
  return ',' + lines_.Break() + IndentationOf(item.range.begin);
}

// After the item's line if it has a line of its own: a comment there stays with the first one.
QByteArray KeymapText::WithCopyInBrackets(const ItemOutline& item) const {
  const int end_of_line = lines_.End(item.range.end);
  const int comma = lines_.SkipComments(item.range.end);
  const QByteArray copy = Slice(item.range);
  const bool has_own_line = IsFirstOnLine(item.range.begin) && comma < end_of_line && text_[comma] == ',' &&
                            lines_.SkipComments(comma + 1) > end_of_line;
  if (!has_own_line) return Inserted(item.range.end, SeparatorBehind(item) + copy);
  return Inserted(end_of_line, lines_.Break() + IndentationOf(item.range.begin) + copy + ',');
}

QByteArray KeymapText::WithCopy(int item) const {
  const ItemOutline& outline = outline_.items[item];
  if (outline.dash < 0) return WithCopyInBrackets(outline);
  const TextRange lines = LinesOf(outline);
  const bool has_blank = !outline.in_braces && HasBlankAbove(outline);
  return Inserted(lines.end, (has_blank ? lines_.Break() : QByteArray()) + lines_.Break() + Slice(lines));
}

// ---- As text

KeymapText::TextRange KeymapText::PlaceOf(int item) const {
  const ItemOutline& outline = outline_.items[item];
  return outline.dash < 0 ? outline.range : LinesOf(outline);
}

PartWritten KeymapText::WithSource(int item, const QByteArray& source) const {
  const TextRange place = PlaceOf(item);
  return {Replaced(place, source), place.begin};
}

std::optional<KeymapText::TextRange> KeymapText::PlaceOfBlock(const QString& name) const {
  const FieldOutline* field = outline_.file.Find(name);
  if (field == nullptr) return {};
  const int begin = field->name_range.begin;
  if (outline_.file.in_braces) return TextRange{begin, field->value.end};
  return TextRange{begin, EndWithComments(field->value.end, begin - lines_.Begin(begin) + 1)};
}

PartWritten KeymapText::WithBlock(const QString& name, const QByteArray& source) const {
  const std::optional<TextRange> place = PlaceOfBlock(name);
  if (!place) return source.isEmpty() ? PartWritten{text_} : WithNewBlock(source);
  if (!source.isEmpty()) return {Replaced(*place, source), place->begin};
  if (!outline_.file.in_braces) return {Replaced({place->begin, lines_.Next(place->end)}, {}), place->begin};
  const auto field = static_cast<int>(outline_.file.Find(name) - outline_.file.fields.constData());
  return {WithoutFieldInBraces(outline_.file, field), place->begin};
}

PartWritten KeymapText::WithNewBlock(const QByteArray& source) const {
  const QVector<FieldOutline>& fields = outline_.file.fields;
  const FieldOutline* items = outline_.file.Find(kItems);
  const bool is_in_braces = outline_.file.in_braces;
  if (items == &fields.first()) {
    const int begin = items->name_range.begin;
    return {Inserted(begin, source + (is_in_braces ? QByteArray(", ") : lines_.Break())), begin};
  }
  const FieldOutline& before = items == nullptr ? fields.last() : *(items - 1);
  const bool has_own_line = IsFirstOnLine(before.name_range.begin);
  const QByteArray new_line = lines_.Break() + IndentationOf(before.name_range.begin);
  const QByteArray front = !is_in_braces ? new_line : has_own_line ? ',' + new_line : QByteArray(", ");
  const int at = is_in_braces ? before.value.end : EndWithComments(before.value.end, 1);
  return {Inserted(at, front + source), at + static_cast<int>(front.size())};
}

QByteArray KeymapText::InLines(const QString& source) const { return source.toUtf8().replace('\n', lines_.Break()); }

}  // namespace tavi
