#include "core/keymap_access.h"

namespace taviinputmanager {

const tavikeymapmanager::KeymapSettings& DefaultSettings() {
  static const tavikeymapmanager::KeymapSettings defaults;
  return defaults;
}

const tavikeymapmanager::WheelSettings& DefaultWheelSettings() {
  static const tavikeymapmanager::WheelSettings defaults;
  return defaults;
}

}  // namespace taviinputmanager
