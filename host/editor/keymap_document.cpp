#include "host/editor/keymap_document.h"

#include <algorithm>

#include <QRegularExpression>

#include "host/editor/new_item.h"
#include "host/system/plain_file.h"
#include "host/system/whole_file.h"
#include "keymap/tavikeymapmanager.h"
#include "qt/numbers.h"

namespace tavi {

namespace km = tavikeymapmanager;
using km::FieldKind;
using km::KeymapOutline;
using Form = FieldValue::Form;

namespace {

constexpr char kNewKeymap[] = "format: 1\n\nitems: []\n";
constexpr double kAside = 0.03;  // offset of a copy from its original, fraction of the display
const QString kType = QStringLiteral("type");
const QString kLabel = QStringLiteral("label");
const QString kPoint = QStringLiteral("point");
const QString kPad = QStringLiteral("Pad ");
const QString kItems = QStringLiteral("items");
const QString kSettings = QStringLiteral("settings");
const QString kWheel = QStringLiteral("wheel");

std::optional<QByteArray> ReadBytes(const QString& path) { return ReadPlainFile(path, km::kMostKeymapBytes); }

// The block must exist.
const km::Diagnostic& FirstError(const km::LoadResult& keymap) {
  return *std::find_if(keymap.diagnostics.begin(), keymap.diagnostics.end(), [](const km::Diagnostic& diagnostic) {
    return diagnostic.severity == km::Diagnostic::Severity::kError;
  });
}

// The error with its position in the part; an error after the part has its position in the file.
QString PlacedError(const km::Diagnostic& error, const PartWritten& written, int lines_of_part) {
  const QByteArray front = written.text.left(written.begin);
  const int line = error.line - front.count('\n');
  const int columns = line == 1 ? QString::fromUtf8(front.mid(front.lastIndexOf('\n') + 1)).size() : 0;
  const QString place = line >= 1 && line <= lines_of_part
                            ? QStringLiteral("Line %1, column %2: ").arg(line).arg(error.column - columns)
                            : QStringLiteral("Line %1 of the file: ").arg(error.line);
  return place + error.message;
}

QByteArray Slice(const QByteArray& text, const km::TextRange& range) { return text.mid(range.begin, range.Length()); }

// The content of a record, without its comments and spaces.
QByteArray Content(const km::RecordOutline& record, const QByteArray& text, const QStringList& without = {}) {
  QByteArray content;
  for (const km::FieldOutline& field : record.fields) {
    if (!without.contains(field.name)) content += field.name.toUtf8() + '\0' + Slice(text, field.value) + '\0';
  }
  return content;
}

QVector<QByteArray> ItemContents(const KeymapOutline& outline, const QByteArray& text) {
  QVector<QByteArray> contents;
  for (const km::ItemOutline& item : outline.items) contents.append(Content(item, text));
  return contents;
}

// "0.5, 0.25", with or without brackets
std::optional<QPointF> PairOf(const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("\\A\\s*\\[?\\s*([-+.0-9eE]+)\\s*[,;\\s]\\s*([-+.0-9eE]+)\\s*\\]?\\s*\\z"));
  const QRegularExpressionMatch match = form.match(text);
  bool is_x = false;
  bool is_y = false;
  const QPointF pair(qt::ToDouble(match.captured(1), &is_x), qt::ToDouble(match.captured(2), &is_y));
  return is_x && is_y ? std::make_optional(pair) : std::nullopt;
}

bool IsKeyCode(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A\\{ *(?:scan|pad): *[\\w ]+\\}\\z"));
  return form.match(text).hasMatch();
}

}  // namespace

// An undo step.
class KeymapDocument::Edit : public QUndoCommand {
 public:
  Edit(KeymapDocument* document, const TextChange& change, const QString& name, int gesture)
      : QUndoCommand(name), document_(document), change_(change), gesture_(gesture) {}

  void redo() override { document_->Take(change_.AppliedTo(document_->text_)); }
  void undo() override { document_->Take(change_.RevertedFrom(document_->text_)); }

  int id() const override { return 1; }  // any two edits may be merged
  bool mergeWith(const QUndoCommand* next) override {
    const auto* edit = static_cast<const Edit*>(next);
    if (gesture_ == 0 || edit->gesture_ != gesture_) return false;
    const QByteArray& after = document_->text_;
    change_ = ChangeBetween(change_.RevertedFrom(edit->change_.RevertedFrom(after)), after);
    setObsolete(change_.IsEmpty());
    return true;
  }

 private:
  KeymapDocument* document_;
  TextChange change_;
  const int gesture_;
};

KeymapDocument::KeymapDocument(QObject* parent) : QObject(parent), types_(km::DescribeItemTypes()) {
  Take(QByteArray());
  connect(&undo_, &QUndoStack::indexChanged, this, &KeymapDocument::Changed);
}

KeymapDocument::~KeymapDocument() {
  undo_.disconnect(this);  // its end signals a change
}

// ---- Files

bool KeymapDocument::Open(const QString& path) {
  const std::optional<QByteArray> bytes = ReadBytes(path);
  Open(path, bytes.value_or(QByteArray()));
  return bytes.has_value();
}

void KeymapDocument::Open(const QString& path, const QByteArray& text) {
  path_ = path;
  text_on_disk_ = text;
  Take(text_on_disk_);
  undo_.clear();
  Q_EMIT Changed();
}

void KeymapDocument::New() {
  path_.clear();
  text_on_disk_.clear();
  Take(kNewKeymap);
  undo_.clear();
  Q_EMIT Changed();
}

QString KeymapDocument::Save(const QString& path) {
  const QString problem = WriteWholeFile(path, text_);
  if (!problem.isEmpty()) return QStringLiteral("%1 cannot be written: %2").arg(path, problem);
  path_ = path;
  text_on_disk_ = text_;
  undo_.setClean();
  Q_EMIT Changed();
  return {};
}

bool KeymapDocument::IsFileChanged() const {
  if (path_.isEmpty()) return false;
  const std::optional<QByteArray> bytes = ReadBytes(path_);
  return bytes && *bytes != text_on_disk_;
}

void KeymapDocument::Take(const QByteArray& text) {
  text_ = text;
  keymap_ = km::ReadKeymapText(text_, path_);
  outline_ = keymap_.HasErrors() ? KeymapOutline() : km::OutlineKeymap(text_).value_or(KeymapOutline());
}

QString KeymapDocument::Refusal() const {
  if (keymap_.HasErrors()) {
    return QStringLiteral("A keymap with errors cannot be edited here. Correct them in the file first.");
  }
  const bool is_told = outline_.items.size() == keymap_.config->items.size() && !outline_.file.fields.isEmpty();
  return is_told ? QString() : QStringLiteral("Only keymaps in UTF-8 can be edited here.");
}

// ---- Looking

const km::ItemTypeInfo& KeymapDocument::TypeOf(int item) const {
  const QString& type = Item(item)->type;
  return *std::find_if(types_.begin(), types_.end(), [&type](const auto& info) { return info.name == type; });
}

QString KeymapDocument::WrittenText(int item, const QString& field) const {
  const km::FieldOutline* outline = outline_.items[item].Find(field);
  if (outline == nullptr) return {};
  return outline->is_scalar ? outline->text : QString::fromUtf8(Slice(text_, outline->value));
}

QStringList KeymapDocument::FieldOrder(int item) const {
  QStringList order{kType, kLabel};
  for (const km::FieldInfo& field : TypeOf(item).fields) order += field.name;
  return order;
}

QSet<QString> KeymapDocument::UsedKeys() const {
  QSet<QString> keys;
  for (int item = 0; item < ItemCount(); ++item) {
    for (const km::FieldInfo& field : TypeOf(item).fields) {
      const bool is_key = field.kind == FieldKind::kKey || field.kind == FieldKind::kChord;
      if (is_key) keys.insert(WrittenText(item, field.name));
    }
  }
  keys.remove(QString());
  return keys;
}

// ---- Edits

FieldValue KeymapDocument::ValueOf(int item, const QString& field, const QString& text) const {
  if (field == kLabel) return {text, Form::kText};
  const km::FieldInfo* info = TypeOf(item).Find(field);
  if (info != nullptr && info->kind == FieldKind::kPadButton) return {text, Form::kText};
  return {text, IsKeyCode(text) ? Form::kSource : Form::kPlain};
}

QString KeymapDocument::SetField(int item, const QString& field, const QString& text) {
  if (text == WrittenText(item, field)) return {};
  const km::FieldInfo* info = TypeOf(item).Find(field);
  const bool is_pair = info != nullptr && info->kind == FieldKind::kPair;
  const std::optional<QPointF> pair = is_pair ? PairOf(text) : std::nullopt;
  if (pair) return SetPair(item, field, *pair);
  const QByteArray after = text.isEmpty()
                               ? Present().WithoutField(item, field)
                               : Present().WithField(item, field, ValueOf(item, field, text), FieldOrder(item));
  return Push(after, QStringLiteral("Set %1").arg(field), Effect::kChanges, item);
}

QString KeymapDocument::SetPair(int item, const QString& field, const QPointF& pair, int gesture) {
  const QString name = field == kPoint ? QStringLiteral("Move") : QStringLiteral("Set %1").arg(field);
  return Push(Present().WithPair(item, field, pair, FieldOrder(item)), name, Effect::kChanges, item, gesture);
}

QString KeymapDocument::SetNumber(int item, const QString& field, double number, int gesture) {
  const FieldValue value{QString::fromUtf8(NumberText(number)), Form::kPlain};
  return Push(Present().WithField(item, field, value, FieldOrder(item)), QStringLiteral("Set %1").arg(field),
              Effect::kChanges, item, gesture);
}

QString KeymapDocument::Add(const QString& type, const QPointF& point) {
  const QSet<QString> keys = UsedKeys();
  const auto pads = std::count_if(keys.begin(), keys.end(), [](const QString& key) { return key.startsWith(kPad); });
  const bool is_gamepad = pads > 0 && pads * 2 > keys.size();
  return Push(Present().WithItem(FieldsOfNewItem(type, point, keys, is_gamepad)), QStringLiteral("Add %1").arg(type),
              Effect::kAdds, ItemCount());
}

QString KeymapDocument::Remove(int item) {
  return Push(Present().WithoutItem(item), QStringLiteral("Delete %1").arg(Item(item)->type), Effect::kRemoves, item);
}

QString KeymapDocument::Duplicate(int item) {
  QByteArray after = Present().WithCopy(item);
  const std::optional<KeymapOutline> outline = km::OutlineKeymap(after);
  const QVector<double> point = km::NumbersOfField(*Item(item), kPoint);
  const bool has_place = outline && outline->items.size() == ItemCount() + 1 && WrittenText(item, kPoint) != QString();
  if (has_place && point.size() == 2) {
    const auto aside = [](double from) { return from + kAside <= 1 ? from + kAside : from - kAside; };
    after = KeymapText(after, *outline).WithPair(item + 1, kPoint, {aside(point[0]), aside(point[1])}, {});
  }
  return Push(after, QStringLiteral("Duplicate %1").arg(Item(item)->type), Effect::kAdds, item + 1);
}

QString KeymapDocument::Source(const KeymapPart& part) const {
  if (part.IsNone()) return {};
  const std::optional<km::TextRange> place =
      part.item >= 0 ? Present().PlaceOf(part.item) : Present().PlaceOfBlock(part.block);
  return place ? QString::fromUtf8(Slice(text_, *place)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
               : QString();
}

QString KeymapDocument::SetSource(const KeymapPart& part, const QString& source) {
  if (part.IsNone() || source == Source(part)) return {};
  const bool is_item = part.item >= 0;
  if (is_item && source.trimmed().isEmpty())
    return QStringLiteral("Nothing is left of the item; use Delete to remove it.");
  const QByteArray lines = source.trimmed().isEmpty() ? QByteArray() : Present().InLines(source);
  const PartWritten written = is_item ? Present().WithSource(part.item, lines) : Present().WithBlock(part.block, lines);
  const km::LoadResult keymap = km::ReadKeymapText(written.text, path_);
  if (keymap.HasErrors()) return PlacedError(FirstError(keymap), written, source.count(QLatin1Char('\n')) + 1);
  const QString name = QStringLiteral("Edit %1").arg(is_item ? Item(part.item)->type : part.block);
  return Push(written.text, name, is_item ? Effect::kChanges : Effect::kLeaves, part.item);
}

QString KeymapDocument::Push(const QByteArray& after, const QString& name, Effect effect, int item, int gesture) {
  const QString refusal = Refusal();
  if (!refusal.isEmpty()) return refusal;
  if (after == text_) return {};
  const km::LoadResult keymap = km::ReadKeymapText(after, path_);
  if (keymap.HasErrors()) return FirstError(keymap).message;
  const std::optional<KeymapOutline> outline = km::OutlineKeymap(after);
  if (!outline || !LeavesOthers(*outline, after, effect, item)) {
    return QStringLiteral("This edit would change other parts of the file. Edit the file itself.");
  }
  undo_.push(new Edit(this, ChangeBetween(text_, after), name, gesture));
  return {};
}

bool KeymapDocument::LeavesOthers(const KeymapOutline& outline, const QByteArray& after, Effect effect,
                                  int item) const {
  const QStringList edited = effect == Effect::kLeaves ? QStringList{kItems, kSettings, kWheel} : QStringList(kItems);
  if (Content(outline_.file, text_, edited) != Content(outline.file, after, edited)) return false;
  QVector<QByteArray> contents = ItemContents(outline_, text_);
  QVector<QByteArray> contents_after = ItemContents(outline, after);
  if (contents_after.size() - contents.size() != (effect == Effect::kAdds) - (effect == Effect::kRemoves)) return false;
  if (effect == Effect::kChanges || effect == Effect::kRemoves) contents.remove(item);
  if (effect == Effect::kChanges || effect == Effect::kAdds) contents_after.remove(item);
  return contents == contents_after;
}

}  // namespace tavi
