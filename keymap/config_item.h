// One entry of a keymap: a key and what it does in the guest.
#ifndef KEYMAP_CONFIG_ITEM_H_
#define KEYMAP_CONFIG_ITEM_H_

#include <QString>

#include "keymap/config_key.h"

namespace tavikeymapmanager {

// The base of all items, and the item of type "Click".
//
// Points are fractions of the display: x of its width, y of its height. Times are in milliseconds. Records are plain
// structs: a loader fills in the fields, the input layer reads them. An item belongs to its KeymapConfig.
struct TAVI_KEYMAP_RECORD ConfigItem {
  ConfigItem() = default;
  ConfigItem(const ConfigItem&) = default;
  ConfigItem& operator=(const ConfigItem&) = default;
  virtual ~ConfigItem() = default;

  // Whether `pressed` is this item's key.
  virtual bool IsKeyMatch(const ConfigKey& pressed) const { return IsSameKey(key, pressed); }

  QString type;      // one of keywords::kType...; an item of any other type does nothing
  double rel_x = 0;  // the item's point, fraction of the display's width
  double rel_y = 0;  // fraction of its height
  ConfigKey key;     // unset in items with four keys
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_CONFIG_ITEM_H_
