// View control by the captured mouse: type "Staring". The item's point is the centre of the view area.
#ifndef KEYMAP_STARING_CONFIG_ITEM_H_
#define KEYMAP_STARING_CONFIG_ITEM_H_

#include <QSizeF>

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD StaringConfigItem : ComposableConfigItem {
  QSizeF range_size{0, 0};       // of the user range, fractions of the display's width and height
  int sensitivity_x = 100;       // per cent; 100 is one display pixel a count
  int sensitivity_y = 100;       // the same, upright
  QString range_mode;            // "Infinite", "Range_User", ...; any other acts as "Range_Window"
  int press_interval_ms = 0;     // least time between sends while the finger is up
  int auto_reset_period_ms = 0;  // of the timer that lifts the finger; 0 or less: no timer
  bool auto_reset = true;        // leaving the range lifts the finger; false: it is kept inside the user range
  int move_interval_ms = 0;      // least time between sends while the finger is down
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_STARING_CONFIG_ITEM_H_
