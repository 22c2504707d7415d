// The JSON Schema of keymap files, from the tables.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "keymapmanager/fields/record_tables.h"
#include "keymapmanager/key_names.h"
#include "keymapmanager/keymap_file.h"
#include "keymapmanager/keys/key_table.h"
#include "keymapmanager/keys/pad_names.h"

namespace tavikeymapmanager {

namespace {

// Short names, so that the schema reads like text.
QString Q(const char* text) { return QString::fromUtf8(text); }
QJsonObject OfType(const char* type) { return {{Q("type"), Q(type)}}; }
QJsonObject Reference(const QString& name) { return {{Q("$ref"), Q("#/definitions/") + name}}; }
QJsonObject AnyOf(const QJsonArray& schemas) { return {{Q("anyOf"), schemas}}; }

QJsonObject InRange(const char* type, const Range& range) {
  return {{Q("type"), Q(type)}, {Q("minimum"), range.min}, {Q("maximum"), range.max}};
}

QJsonObject ListOf(const QJsonObject& entry, int min_size) {
  return {{Q("type"), Q("array")}, {Q("items"), entry}, {Q("minItems"), min_size}};
}

QJsonObject ListOfExactly(const QJsonObject& entry, int size) {
  QJsonObject list = ListOf(entry, size);
  list.insert(Q("maxItems"), size);
  return list;
}

// An object of one field.
QJsonObject OneField(const char* name, const QJsonObject& value) {
  return {{Q("type"), Q("object")},
          {Q("properties"), QJsonObject{{Q(name), value}}},
          {Q("required"), QJsonArray{Q(name)}},
          {Q("additionalProperties"), false}};
}

QJsonObject PairIn(const Range& range) { return ListOfExactly(InRange("number", range), 2); }

// In the syntax of regular expressions of JSON Schema.
QString Escaped(const QString& text) {
  QString escaped;
  for (const QChar character : text) {
    if (Q("\\^$.|?*+()[]{}/").contains(character)) escaped += QLatin1Char('\\');
    escaped += character;
  }
  return escaped;
}

// Names of keyboard and mouse, including aliases and numbers.
QString ButtonPattern() {
  QStringList names;
  for (const QString& name : AllKeyNames()) {
    if (!name.startsWith(kPadPrefix)) names += Escaped(name);
  }
  for (const KeyboardKeyRow& row : KeyboardKeys()) {
    if (row.alias != nullptr) names += Escaped(Q(row.alias));
  }
  names += Q("Scan ([1-9]|[1-9][0-9]|[1-4][0-9][0-9]|50[0-9]|51[01])");
  return Q("(") + names.join(QLatin1Char('|')) + Q(")");
}

QString PadPattern() { return Q("Pad (?!(Left_Stick|Right_Stick)$)[^\\s+]+( ?\\+ ?[^\\s+]+)?"); }

QJsonObject KeyNamed(const QString& pattern) {
  const QJsonObject name{{Q("type"), Q("string")}, {Q("pattern"), Q("^(") + pattern + Q(")$")}};
  const QJsonObject stick{{Q("enum"), QJsonArray{keywords::kLeftStick, keywords::kRightStick}}};
  const QJsonObject pad{{Q("type"), Q("string")}, {Q("minLength"), 1}, {Q("not"), stick}};
  return AnyOf({name, InRange("integer", {0, 9}), OneField("scan", InRange("integer", {1, kScancodeCount - 1})),
                OneField("pad", pad)});
}

QJsonObject KeySchema() { return KeyNamed(ButtonPattern() + Q("|") + PadPattern()); }

QJsonObject ChordSchema() {
  return KeyNamed(ButtonPattern() + Q("( \\+ ") + ButtonPattern() + Q(")?|") + PadPattern());
}

QJsonObject StickSchema(const QString& name) {
  const QJsonObject host_name{{Q("const"), KeyFromName(name)->text}};
  return AnyOf({QJsonObject{{Q("const"), name}}, OneField("pad", host_name)});
}

QJsonObject ValueSchema(const Field& field) {
  switch (field.kind) {
    case FieldKind::kFlag: return OfType("boolean");
    case FieldKind::kInteger: return InRange("integer", field.range);
    case FieldKind::kNumber: return InRange("number", field.range);
    case FieldKind::kPadButton: return {{Q("type"), Q("string")}, {Q("minLength"), 1}};
    case FieldKind::kWord: return {{Q("enum"), QJsonArray::fromStringList(field.words)}};
    case FieldKind::kPair: return PairIn(field.range);
    case FieldKind::kKey: return {{Q("allOf"), QJsonArray{Reference(Q("key"))}}};
    case FieldKind::kChord: return {{Q("allOf"), QJsonArray{Reference(Q("chord"))}}};
    case FieldKind::kStick: return StickSchema(field.words.first());
    case FieldKind::kCommands: return ListOf(OfType("string"), 0);
    case FieldKind::kPoints: return ListOf(PairIn(field.range), 2);
    case FieldKind::kMatrix: return ListOfExactly(InRange("number", field.range), 16);
    case FieldKind::kWalk: return {{Q("allOf"), QJsonArray{Reference(Q("inner_swipehold"))}}};
  }
  return {};
}

// A field's default; undefined if a file cannot contain it.
QJsonValue DefaultOf(const Field& field, const RecordRef& record) {
  const FieldTarget target = field.target(record);
  if (const auto* flag = std::get_if<bool*>(&target)) return **flag;
  if (const auto* integer = std::get_if<int*>(&target)) return **integer;
  if (const auto* number = std::get_if<double*>(&target)) return **number;
  if (const auto* pair = std::get_if<PairTarget>(&target)) return QJsonArray{*pair->x, *pair->y};
  if (const auto* point = std::get_if<QPointF*>(&target)) return QJsonArray{(*point)->x(), (*point)->y()};
  if (const auto* size = std::get_if<QSizeF*>(&target)) return QJsonArray{(*size)->width(), (*size)->height()};
  const auto* text = std::get_if<QString*>(&target);
  const bool is_word = text != nullptr && field.kind == FieldKind::kWord && !(*text)->isEmpty();
  return is_word ? QJsonValue(**text) : QJsonValue(QJsonValue::Undefined);
}

QJsonObject RecordSchema(const RecordTable& table, const RecordRef& record) {
  QJsonObject properties;
  QJsonArray required, groups;
  for (const Field& field : table.fields) {
    QJsonObject value = ValueSchema(field);
    value.insert(Q("description"), field.doc);
    if (field.is_required) {
      required += field.name;
    } else if (!DefaultOf(field, record).isUndefined()) {
      value.insert(Q("default"), DefaultOf(field, record));
    }
    properties.insert(field.name, value);
  }
  QJsonObject schema{{Q("type"), Q("object")},
                     {Q("description"), table.doc},
                     {Q("properties"), properties},
                     {Q("required"), required},
                     {Q("additionalProperties"), false}};
  for (const QStringList& group : table.at_least_one) {
    for (const QString& name : group) groups += QJsonObject{{Q("required"), QJsonArray{name}}};
    schema.insert(Q("anyOf"), groups);
  }
  return schema;
}

QJsonObject ItemSchema(const RecordTable& table) {
  const std::unique_ptr<ConfigItem> item = table.create();
  QJsonObject schema = RecordSchema(table, item.get());
  QJsonObject properties = schema.value(Q("properties")).toObject();
  properties.insert(Q("type"), QJsonObject{{Q("const"), table.name}});
  properties.insert(Q("label"),
                    QJsonObject{{Q("type"), Q("string")}, {Q("description"), Q("the text that an overlay shows")}});
  schema.insert(Q("properties"), properties);
  return schema;
}

// Selects the schema of an item by its type.
QJsonObject AnyItemSchema() {
  QJsonArray choices;
  for (const QString& type : ItemTypes()) {
    const QJsonObject is_type{{Q("type"), QJsonObject{{Q("const"), type}}}};
    choices += QJsonObject{{Q("if"), QJsonObject{{Q("properties"), is_type}}}, {Q("then"), Reference(type)}};
  }
  const QJsonObject type{{Q("enum"), QJsonArray::fromStringList(ItemTypes())},
                         {Q("description"), Q("what the item does")}};
  return {{Q("type"), Q("object")},
          {Q("required"), QJsonArray{Q("type")}},
          {Q("properties"), QJsonObject{{Q("type"), type}}},
          {Q("allOf"), choices}};
}

QJsonObject Definitions() {
  KeymapSettings settings;
  WheelSettings wheel;
  SwipeholdConfigItem walk;
  QJsonObject definitions{{Q("key"), KeySchema()},
                          {Q("chord"), ChordSchema()},
                          {Q("settings"), RecordSchema(SettingsTable(), &settings)},
                          {Q("wheel"), RecordSchema(WheelTable(), &wheel)},
                          {Q("inner_swipehold"), RecordSchema(InnerSwipeholdTable(), static_cast<ConfigItem*>(&walk))},
                          {Q("item"), AnyItemSchema()}};
  for (const RecordTable& table : ItemTables()) definitions.insert(table.name, ItemSchema(table));
  return definitions;
}

QJsonObject OrNull(const QJsonObject& schema) { return AnyOf({schema, OfType("null")}); }

QJsonObject FileSchema() {
  const QJsonObject format{{Q("const"), 1}, {Q("description"), Q("the version of the format")}};
  const QJsonObject name{{Q("type"), Q("string")}, {Q("description"), Q("the keymap's name, for display")}};
  const QJsonObject package{{Q("type"), Q("string")},
                            {Q("description"), Q("the guest's app that the keymap is for, as Android names it")}};
  const QJsonObject properties{{Q("format"), format},
                               {Q("name"), name},
                               {Q("package"), package},
                               {Q("settings"), OrNull(Reference(Q("settings")))},
                               {Q("wheel"), OrNull(Reference(Q("wheel")))},
                               {Q("items"), OrNull(ListOf(Reference(Q("item")), 0))}};
  return {{Q("$schema"), Q("http://json-schema.org/draft-07/schema#")},
          {Q("title"), Q("Keymap")},
          {Q("type"), Q("object")},
          {Q("properties"), properties},
          {Q("required"), QJsonArray{Q("format")}},
          {Q("additionalProperties"), false},
          {Q("definitions"), Definitions()}};
}

}  // namespace

QByteArray KeymapFileSchema() { return QJsonDocument(FileSchema()).toJson(); }

}  // namespace tavikeymapmanager
