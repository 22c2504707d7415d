// Type "Macro": a key that runs a macro.
#ifndef KEYMAP_MACRO_CONFIG_ITEM_H_
#define KEYMAP_MACRO_CONFIG_ITEM_H_

#include <QStringList>

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD MacroConfigItem : ComposableConfigItem {
  QStringList press_commands;    // run at the key's press, one command per element
  QStringList release_commands;  // run at its release
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_MACRO_CONFIG_ITEM_H_
