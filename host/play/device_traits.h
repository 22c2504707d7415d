// What a device says that it is, and whether a player uses it.
#ifndef HOST_PLAY_DEVICE_TRAITS_H_
#define HOST_PLAY_DEVICE_TRAITS_H_

#include <QString>
#include <QStringList>

namespace tavi {

struct DeviceTraits {
  QString path;             // "/dev/input/event3"
  QString name;             // as the maker calls it
  bool is_virtual = false;  // on no bus: made by a program
  bool has_letters = false;
  bool has_keypad = false;
  bool has_motion = false;  // tells ways, as a mouse does
  bool has_mouse_buttons = false;
  bool has_places = false;  // tells places, as touch screens, touchpads and tablets do
  bool has_gamepad_buttons = false;
};

enum class DeviceKind { kKeyboard, kMouse, kGamepad, kOther };

// A device that is keyboard and mouse at once counts as a keyboard.
DeviceKind KindOf(const DeviceTraits& traits);
// "keyboard", "mouse", "gamepad", "other".
QString WordOf(DeviceKind kind);

// A guest's own device, this program's or another's like it: taking it would turn a player's keys in a circle.
bool IsOfAGuest(const DeviceTraits& traits);

// Why the device is not read; empty for one that is. `wanted` are the names or paths that were asked for; without any,
// every keyboard and mouse is.
QString WhyNotTaken(const DeviceTraits& traits, const QStringList& wanted);

}  // namespace tavi

#endif  // HOST_PLAY_DEVICE_TRAITS_H_
