// One entry of a keymap: a key and what it does to the guest.
#ifndef KEYMAP_CONFIG_ITEM_H_
#define KEYMAP_CONFIG_ITEM_H_

#include <QString>

#include "keymap/config_key.h"

namespace tavikeymapmanager {

// The base of all items, and the item of type "Click".
//
// Points are fractions of the display, x of its width and y of its height; times are in milliseconds. Records are
// plain: a loader fills the fields, the input layer reads them. Items are owned by their KeymapConfig.
struct TAVI_KEYMAP_RECORD ConfigItem {
  ConfigItem() = default;
  ConfigItem(const ConfigItem&) = default;
  ConfigItem& operator=(const ConfigItem&) = default;
  virtual ~ConfigItem() = default;

  // Whether `pressed` is this item's key.
  virtual bool IsKeyMatch(const ConfigKey& pressed) const { return IsSameKey(key, pressed); }

  QString type;      // keywords::kType...; an item of any other type does nothing
  double rel_x = 0;  // the item's point
  double rel_y = 0;  // the same
  ConfigKey key;     // unset in items that have four keys
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_CONFIG_ITEM_H_
