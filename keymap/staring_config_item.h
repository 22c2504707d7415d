// Type "Staring": view control with the captured mouse. The item's point is the centre of the view area.
#ifndef KEYMAP_STARING_CONFIG_ITEM_H_
#define KEYMAP_STARING_CONFIG_ITEM_H_

#include <QSizeF>

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD StaringConfigItem : ComposableConfigItem {
  QSizeF range_size{0, 0};       // of the user range, fractions of the display's width and height
  int sensitivity_x = 100;       // horizontal, in per cent; 100 is one display pixel per count
  int sensitivity_y = 100;       // vertical, likewise
  QString range_mode;            // "Infinite", "Range_User", ...; any other value acts as "Range_Window"
  int press_interval_ms = 0;     // minimum time between sends while the contact is up
  int auto_reset_period_ms = 0;  // interval at which the contact is lifted; 0 or less: never
  bool auto_reset = true;        // lift the contact when it leaves the range; false: keep it within the user range
  int move_interval_ms = 0;      // minimum time between sends while the contact is down
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_STARING_CONFIG_ITEM_H_
