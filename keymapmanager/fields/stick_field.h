// Items for a gamepad's stick: their key is that stick and may be omitted.
#ifndef KEYMAPMANAGER_FIELDS_STICK_FIELD_H_
#define KEYMAPMANAGER_FIELDS_STICK_FIELD_H_

#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/key_names.h"

namespace tavikeymapmanager {

template <typename Item>
RecordTable StickItemTable(const QString& type, const char* doc, const QString& stick, const QVector<Field>& fields) {
  RecordTable table = ItemTable<Item>(type, doc, fields);
  Field key = MakeField(FieldKind::kStick, "key", &ConfigItem::key,
                        "the stick; the only possible key, so you can leave it out");
  key.words = QStringList(NameOfKey(JoystickKey(stick)));
  table.fields.prepend(key);
  table.create = [type, stick] {
    auto item = std::make_unique<Item>();
    item->type = type;
    item->key = JoystickKey(stick);
    return item;
  };
  return table;
}

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_STICK_FIELD_H_
