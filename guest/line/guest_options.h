// What a guest is, and for whom.
#ifndef GUEST_LINE_GUEST_OPTIONS_H_
#define GUEST_LINE_GUEST_OPTIONS_H_

#include <optional>
#include <string>

#include "guest/line/geometry.h"

namespace taviguest {

// Who reads the devices.
enum class GuestSystem {
  kLinux,   // libinput and its like: an absolute pointer, a full keyboard
  kAndroid  // Android itself: a relative mouse, no full keyboard, kMostAndroidFingers
};

// More at once are not seen there.
constexpr int kMostAndroidFingers = 16;

struct GuestOptions {
  Size surface{1280, 720};    // touch coordinates; each side from 1 to kLongestSide
  std::string name = "tavi";  // the devices are "tavi screen" and so on; 1 to kMostNameBytes bytes
  GuestSystem system = GuestSystem::kLinux;
  std::optional<int> display;  // whose lines count; without one all do. Texts always do

  // Android only: the keys that type, too. A keyboard that has them hides the one on the screen.
  bool has_full_keyboard = false;
  // There from the start, and not only when a line needs one.
  bool has_gamepad = false;
  bool has_touchpad = false;
};

constexpr int kLongestSide = 16384;
constexpr int kMostNameBytes = 60;

}  // namespace taviguest

#endif  // GUEST_LINE_GUEST_OPTIONS_H_
