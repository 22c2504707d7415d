// Every record that a keymap file can contain.
#ifndef KEYMAPMANAGER_FIELDS_RECORD_TABLES_H_
#define KEYMAPMANAGER_FIELDS_RECORD_TABLES_H_

#include <QStringList>
#include <QVector>

#include "keymapmanager/fields/field.h"

namespace tavikeymapmanager {

const RecordTable& SettingsTable();
const RecordTable& WheelTable();

// One for each item type, in the order of docs/keymap.md.
const QVector<RecordTable>& ItemTables();
// The table of an item type; null for an unknown one.
const RecordTable* FindItemTable(const QString& type);
QStringList ItemTypes();

// The parts of ItemTables, by topic.
QVector<RecordTable> TouchItemTables();
QVector<RecordTable> WalkItemTables();
QVector<RecordTable> ViewItemTables();
QVector<RecordTable> SpellItemTables();
QVector<RecordTable> MacroItemTables();
QVector<RecordTable> GamepadItemTables();

// The spell's inner walk: the fields of a Swipehold item, none of them required.
const RecordTable& InnerSwipeholdTable();

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_RECORD_TABLES_H_
