// Type "Curve": a contact follows a stored list of points.
#ifndef KEYMAP_CURVE_CONFIG_ITEM_H_
#define KEYMAP_CURVE_CONFIG_ITEM_H_

#include <QPointF>

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD CurveConfigItem : ComposableConfigItem {
  QPointF curve_start;           // start of a generated straight line, an offset from the item's point
  QPointF curve_end;             // its end, likewise
  QString curve_points;          // "x,y;x,y;...", offsets from the item's point
  bool curve_straight = false;   // generate the points from the two ends
  int curve_first_delay_ms = 0;  // from the press to the first point; below 1: 8 ms
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_CURVE_CONFIG_ITEM_H_
