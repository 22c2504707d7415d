// A key that runs a macro: type "Macro".
#ifndef KEYMAP_MACRO_CONFIG_ITEM_H_
#define KEYMAP_MACRO_CONFIG_ITEM_H_

#include <QStringList>

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD MacroConfigItem : ComposableConfigItem {
  QStringList press_commands;    // of the key's press, one command an element
  QStringList release_commands;  // of its release
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_MACRO_CONFIG_ITEM_H_
