// Items that run macros.
#include "keymap/macro_config_item.h"
#include "keymap/operation_recorder_config_item.h"
#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

namespace {

template <typename Item>
RecordTable MacroTable(const QString& type, const char* doc) {
  RecordTable table = ItemTable<Item>(
      type, doc,
      {ChordField(), OverlayPointField(),
       Commands("press_commands", &MacroConfigItem::press_commands, "the commands that run when the key is pressed"),
       Commands("release_commands", &MacroConfigItem::release_commands,
                "the commands that run when the key is released")});
  table.at_least_one = {{QStringLiteral("press_commands"), QStringLiteral("release_commands")}};
  return table;
}

}  // namespace

QVector<RecordTable> MacroItemTables() {
  return {MacroTable<MacroConfigItem>(keywords::kTypeMacro, "A key that runs a list of commands."),
          MacroTable<OperationRecorderConfigItem>(keywords::kTypeOperationRecorder,
                                                  "A macro that reports its length to the host when it starts.")};
}

}  // namespace tavikeymapmanager
