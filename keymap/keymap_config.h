// The content of a keymap.
#ifndef KEYMAP_KEYMAP_CONFIG_H_
#define KEYMAP_KEYMAP_CONFIG_H_

#include <QList>

#include "keymap/config_item.h"
#include "keymap/keymap_settings.h"
#include "keymap/wheel_settings.h"

namespace tavikeymapmanager {

// Owns everything that it points to. The input manager owns the config and destroys it before the next load. Do not
// change the keys of items in use: they are found by the keys that they had at the first search after the load.
struct TAVI_KEYMAP_RECORD KeymapConfig {
  KeymapConfig() = default;
  KeymapConfig(const KeymapConfig&) = delete;
  KeymapConfig& operator=(const KeymapConfig&) = delete;
  ~KeymapConfig() {
    qDeleteAll(items);
    delete settings;
    delete wheel_settings;
  }

  QList<ConfigItem*> items;                 // in the order of matching
  KeymapSettings* settings = nullptr;       // null: the defaults
  WheelSettings* wheel_settings = nullptr;  // the same
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_KEYMAP_CONFIG_H_
