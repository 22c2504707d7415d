// The point that gives up a cast: type "SpellCancel".
#ifndef KEYMAP_SPELL_CANCEL_CONFIG_ITEM_H_
#define KEYMAP_SPELL_CANCEL_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD SpellCancelConfigItem : ComposableConfigItem {
  bool cancel_immediately = false;  // the key cancels; false: it is not taken at all
  int cancel_delay_ms = 0;          // time on the point before the release; 0: at once; negative: stays down
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SPELL_CANCEL_CONFIG_ITEM_H_
