#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

const QVector<RecordTable>& ItemTables() {
  static const QVector<RecordTable> tables = TouchItemTables() + WalkItemTables() + ViewItemTables() +
                                             SpellItemTables() + MacroItemTables() + GamepadItemTables();
  return tables;
}

const RecordTable* FindItemTable(const QString& type) {
  for (const RecordTable& table : ItemTables()) {
    if (table.name == type) return &table;
  }
  return nullptr;
}

QStringList ItemTypes() {
  QStringList types;
  for (const RecordTable& table : ItemTables()) types += table.name;
  return types;
}

}  // namespace tavikeymapmanager
