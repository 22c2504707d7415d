// Type "SpellCancel": a key that cancels a cast, and its point.
#ifndef KEYMAP_SPELL_CANCEL_CONFIG_ITEM_H_
#define KEYMAP_SPELL_CANCEL_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD SpellCancelConfigItem : ComposableConfigItem {
  bool cancel_immediately = false;  // enables the key; false: the item ignores it
  int cancel_delay_ms = 0;          // time on the point before the lift; 0: none; negative: stays down
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SPELL_CANCEL_CONFIG_ITEM_H_
