#include "keymapmanager/keymap_outline.h"

#include "keymapmanager/fields/record_reader.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

bool IsSpace(char byte) { return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n'; }

// The parser counts characters, an editor bytes.
class Outliner {
 public:
  explicit Outliner(const QByteArray& text) : text_(text) {
    const int end = static_cast<int>(text.size());
    bytes_.reserve(end + 1);
    for (int i = text.startsWith(kByteOrderMark) ? 3 : 0; i < end; ++i) {
      const bool is_continuation = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
      if (!is_continuation) bytes_.append(i);
    }
    bytes_.append(end);
  }

  RecordOutline Record(const YamlNode& node) const {
    RecordOutline record;
    record.range = RangeOf(node);
    record.in_braces = node.in_brackets;
    for (size_t i = 0; i < node.keys.size(); ++i) record.fields.append(Field(node.keys[i], node.children[i]));
    return record;
  }

  // The dash after `position`, which only spaces and comments precede.
  int DashBehind(int position) const {
    while (position < text_.size() && (IsSpace(text_[position]) || text_[position] == '#')) {
      if (text_[position] == '#') {
        while (position < text_.size() && text_[position] != '\n' && text_[position] != '\r') ++position;
      } else {
        ++position;
      }
    }
    return position;
  }

  TextRange RangeOf(const YamlNode& node) const {
    TextRange range{bytes_.value(node.begin), bytes_.value(node.end)};
    SkipAnchor(&range);
    while (range.end > range.begin && IsSpace(text_[range.end - 1])) --range.end;
    return range;
  }

 private:
  FieldOutline Field(const YamlNode& name, const YamlNode& value) const {
    FieldOutline field;
    field.name = name.text;
    field.name_range = RangeOf(name);
    field.value = RangeOf(value);
    field.is_scalar = value.kind == YamlNode::Kind::kScalar;
    field.text = value.text;
    if (value.kind != YamlNode::Kind::kSequence) return field;
    for (const YamlNode& entry : value.children) field.entries.append(RangeOf(entry));
    return field;
  }

  // "&name value"
  void SkipAnchor(TextRange* range) const {
    if (range->Length() == 0 || text_[range->begin] != '&') return;
    while (range->begin < range->end && !IsSpace(text_[range->begin])) ++range->begin;
    while (range->begin < range->end && IsSpace(text_[range->begin])) ++range->begin;
  }

  const QByteArray& text_;
  QVector<int> bytes_;  // the start of each character, and the end
};

bool IsOtherEncoding(const QByteArray& text) { return text.startsWith("\xFF\xFE") || text.startsWith("\xFE\xFF"); }

bool OutlineItems(const YamlNode& list, const Outliner& outliner, KeymapOutline* outline) {
  outline->items_in_brackets = list.in_brackets;
  int before = outliner.RangeOf(list).begin;
  for (const YamlNode& node : list.children) {
    if (node.kind != YamlNode::Kind::kMapping) return false;
    ItemOutline item;
    static_cast<RecordOutline&>(item) = outliner.Record(node);
    if (!list.in_brackets) item.dash = outliner.DashBehind(before);
    before = item.range.end;
    outline->items.append(item);
  }
  return true;
}

}  // namespace

std::optional<KeymapOutline> OutlineKeymap(const QByteArray& text) {
  if (IsOtherEncoding(text)) return {};
  YamlError error;
  const std::optional<YamlNode> root = ParseYaml(text, &error);
  if (!root || root->kind != YamlNode::Kind::kMapping) return {};
  const Outliner outliner(text);
  KeymapOutline outline;
  outline.file = outliner.Record(*root);
  const YamlNode* items = FindValue(*root, QStringLiteral("items"));
  if (items != nullptr && items->kind == YamlNode::Kind::kSequence && !OutlineItems(*items, outliner, &outline)) {
    return {};
  }
  return outline;
}

}  // namespace tavikeymapmanager
