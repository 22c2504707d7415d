#ifndef HOST_EDITOR_NEW_ITEM_H_
#define HOST_EDITOR_NEW_ITEM_H_

#include <QPointF>
#include <QSet>
#include <QString>
#include <QVector>

#include "host/editor/keymap_text.h"

namespace tavi {

// A group of related item types, as in a menu.
struct ItemTypeGroup {
  QString name;  // for display
  QStringList types;
};

// Every type once.
QVector<ItemTypeGroup> ItemTypeGroups();

// The fields of a new item that has an effect at `point`, with keys that are not in `used_keys` (names) as long as
// there are such keys. `is_gamepad`: gamepad buttons.
QVector<NamedValue> FieldsOfNewItem(const QString& type, const QPointF& point, const QSet<QString>& used_keys,
                                    bool is_gamepad);

}  // namespace tavi

#endif  // HOST_EDITOR_NEW_ITEM_H_
