// The properties that a device reports, and whether a player uses it.
#ifndef HOST_PLAY_DEVICE_TRAITS_H_
#define HOST_PLAY_DEVICE_TRAITS_H_

#include <QString>
#include <QStringList>

namespace tavi {

struct DeviceTraits {
  QString path;             // "/dev/input/event3"
  QString name;             // the manufacturer's name
  bool is_virtual = false;  // on no bus: created by a program
  bool has_letters = false;
  bool has_keypad = false;
  bool has_motion = false;  // reports movement, like a mouse
  bool has_mouse_buttons = false;
  bool has_places = false;  // reports positions, like touch screens, touchpads and tablets
  bool has_gamepad_buttons = false;
};

enum class DeviceKind { kKeyboard, kMouse, kGamepad, kOther };

// A device that is both keyboard and mouse counts as a keyboard.
DeviceKind KindOf(const DeviceTraits& traits);
// "keyboard", "mouse", "gamepad", "other".
QString WordOf(DeviceKind kind);

// A guest's device, of this program or another one of its kind: taking it would feed the output back as input.
bool IsOfAGuest(const DeviceTraits& traits);

// Why the device is not read; empty if it is. `wanted` are the requested names or paths; if empty, every keyboard and
// mouse is read.
QString WhyNotTaken(const DeviceTraits& traits, const QStringList& wanted);

}  // namespace tavi

#endif  // HOST_PLAY_DEVICE_TRAITS_H_
