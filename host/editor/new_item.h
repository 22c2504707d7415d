#ifndef HOST_EDITOR_NEW_ITEM_H_
#define HOST_EDITOR_NEW_ITEM_H_

#include <QPointF>
#include <QSet>
#include <QString>
#include <QVector>

#include "host/editor/keymap_text.h"

namespace tavi {

// Item types that belong together, as a menu offers them.
struct ItemTypeGroup {
  QString name;  // for people
  QStringList types;
};

// Every type once.
QVector<ItemTypeGroup> ItemTypeGroups();

// The fields of a new item that does something at `point`, with keys that are not in `used_keys` (names) where there
// are such keys. `is_gamepad`: keys of a gamepad.
QVector<NamedValue> FieldsOfNewItem(const QString& type, const QPointF& point, const QSet<QString>& used_keys,
                                    bool is_gamepad);

}  // namespace tavi

#endif  // HOST_EDITOR_NEW_ITEM_H_
