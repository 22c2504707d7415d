// Keys of one device, by their codes.
#ifndef HANDLERS_KNOWN_KEYS_H_
#define HANDLERS_KNOWN_KEYS_H_

#include <array>
#include <cstddef>

#include <QString>

#include "handlers/keymap_origin.h"
#include "keymap/keymap_functions.h"

namespace taviinputmanager {

// Our keymap library always creates the same key from the same codes, so each key is created once and kept. A function
// of the host is called each time, and nothing is kept.
//
// Main thread. A key that was found does not change during the run.
class KnownKeys {
 public:
  explicit KnownKeys(const QString& device) : device_(device) {}

  // Calls `use` with the key of these codes, which is valid during the call.
  template <typename Use>
  auto With(int virtual_key, int scancode, Use use) {
    tavikeymapmanager::ConfigKey* const known = Find(virtual_key, scancode);
    return known ? use(known) : WithNew(virtual_key, scancode, use);
  }

 private:
  static constexpr std::size_t kPlaces = 512;  // the number of scan codes of a keyboard; buttons are bits

  // Null if the key has to be created.
  tavikeymapmanager::ConfigKey* Find(int virtual_key, int scancode) {
    tavikeymapmanager::ConfigKey& key = keys_[static_cast<unsigned>(scancode) % kPlaces];
    if (key.device.isEmpty()) return Keep(virtual_key, scancode, &key);
    return key.scancode == scancode && key.virtual_key == virtual_key ? &key : nullptr;
  }

  template <typename Use>
  Q_NEVER_INLINE auto WithNew(int virtual_key, int scancode, Use use) const {
    tavikeymapmanager::ConfigKey key = tavikeymapmanager::CreateConfigKey(device_, virtual_key, scancode);
    return use(&key);
  }
  // The first key of a place keeps it.
  Q_NEVER_INLINE tavikeymapmanager::ConfigKey* Keep(int virtual_key, int scancode,
                                                    tavikeymapmanager::ConfigKey* place) const {
    if (!is_making_own_) return nullptr;
    *place = tavikeymapmanager::CreateConfigKey(device_, virtual_key, scancode);
    return place;
  }

  const QString device_;
  const bool is_making_own_ = IsKeyCreationOwn();
  std::array<tavikeymapmanager::ConfigKey, kPlaces> keys_;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_KNOWN_KEYS_H_
