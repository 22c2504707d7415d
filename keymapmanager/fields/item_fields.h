// Fields that many items have, and the ranges of their values.
#ifndef KEYMAPMANAGER_FIELDS_ITEM_FIELDS_H_
#define KEYMAPMANAGER_FIELDS_ITEM_FIELDS_H_

#include "keymap/composable_config_item.h"
#include "keymapmanager/fields/field.h"

namespace tavikeymapmanager {

constexpr Range kFraction{0, 1};       // relative to the display's width or height
constexpr Range kRadius{0.001, 1};     // a circle without a size has no directions
constexpr Range kOffset{-1, 1};        // between two points
constexpr Range kTimeMs{0, 60000};     // a minute: anything longer is a mistake
constexpr Range kStepCount{1, 1000};   // of a slide
constexpr Range kStepCount0{0, 1000};  // where 0 means none
constexpr Range kSteering{-1000, 1000};

template <typename Item>
RecordTable ItemTable(const QString& type, const char* doc, const QVector<Field>& fields) {
  RecordTable table;
  table.name = type;
  table.doc = QString::fromUtf8(doc);
  table.fields = fields;
  table.create = [type] {
    auto item = std::make_unique<Item>();
    item->type = type;
    return item;
  };
  return table;
}

inline Field PointField(const char* doc) {
  return Required(Pair("point", &ConfigItem::rel_x, &ConfigItem::rel_y, kFraction, doc));
}

// The point of an item that touches nothing: only overlays use it.
inline Field OverlayPointField() {
  return Pair("point", &ConfigItem::rel_x, &ConfigItem::rel_y, kFraction, "where an overlay shows the key");
}

inline Field KeyField() { return Key("key", &ConfigItem::key, "the key"); }

inline Field ChordField() {
  Field field;
  field.name = QStringLiteral("key");
  field.kind = FieldKind::kChord;
  field.doc = QStringLiteral("the key, or the two keys of a chord");
  field.target = [](const RecordRef& record) -> FieldTarget {
    auto& item = RecordAs<ComposableConfigItem>(record);
    return ChordTarget{&item.first_key, &item.key};
  };
  return Required(field);
}

// The four direction keys of an item, of which it needs at least one.
template <typename Item>
QVector<Field> DirectionKeyFields() {
  return {Key("key_up", &Item::key_up, "the key for up"), Key("key_right", &Item::key_right, "the key for right"),
          Key("key_down", &Item::key_down, "the key for down"), Key("key_left", &Item::key_left, "the key for left")};
}

inline QStringList DirectionKeyNames() {
  return {QStringLiteral("key_up"), QStringLiteral("key_right"), QStringLiteral("key_down"),
          QStringLiteral("key_left")};
}

// The fields of the four-key walk, which the virtual sticks and the inner walk of a spell share.
QVector<Field> SwipeholdFields();

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_ITEM_FIELDS_H_
