// The properties of a guest, and its users.
#ifndef GUEST_LINE_GUEST_OPTIONS_H_
#define GUEST_LINE_GUEST_OPTIONS_H_

#include <optional>
#include <string>

#include "guest/line/geometry.h"

namespace taviguest {

// Who reads the devices.
enum class GuestSystem {
  kLinux,   // libinput and the like: an absolute pointer, a full keyboard
  kAndroid  // Android itself: a relative mouse, no full keyboard, kMostAndroidFingers
};

// Android ignores further ones.
constexpr int kMostAndroidFingers = 16;

struct GuestOptions {
  Size surface{1280, 720};    // touch coordinates; each side from 1 to kLongestSide
  std::string name = "tavi";  // prefix of the devices' names ("tavi screen"); 1 to kMostNameBytes bytes
  GuestSystem system = GuestSystem::kLinux;
  std::optional<int> display;  // whose lines are played; all if empty. Text lines always are

  // Android only: include the keys that type. A keyboard with them hides the one on the screen.
  bool has_full_keyboard = false;
  // Created at the start, not only when a line needs one.
  bool has_gamepad = false;
  bool has_touchpad = false;
};

constexpr int kLongestSide = 16384;
constexpr int kMostNameBytes = 60;

}  // namespace taviguest

#endif  // GUEST_LINE_GUEST_OPTIONS_H_
