// Type "Zoom": a key that pinches with two contacts.
#ifndef KEYMAP_ZOOM_CONFIG_ITEM_H_
#define KEYMAP_ZOOM_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD ZoomConfigItem : ComposableConfigItem {
  int direction = 1;          // 1 apart, 2 together
  int speed = 1;              // as in WheelConfigItem
  QString axis;               // "horizontal" or "vertical"
  int duration_ms = 0;        // of one pinch
  double start_distance = 0;  // minimum distance of a contact from the centre, fraction of the display
  bool swap_fingers = false;  // swap the two contacts
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_ZOOM_CONFIG_ITEM_H_
