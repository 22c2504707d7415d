// Converts the guest's lines to events of the kernel's devices.
#ifndef GUEST_TRANSLATION_GUEST_TRANSLATOR_H_
#define GUEST_TRANSLATION_GUEST_TRANSLATOR_H_

#include <map>
#include <set>
#include <utility>

#include "guest/line/guest_line.h"
#include "guest/translation/screen_contacts.h"
#include "guest/translation/translation.h"

namespace taviguest {

// Not bound to a thread. It remembers what is down, so that it sends every change once: a key that is down is not
// pressed again, a slot that is up is not released.
class GuestTranslator {
 public:
  explicit GuestTranslator(const GuestOptions& options);

  Translation Translate(const GuestLine& line);

  // Releases contacts, keys and buttons that are down, and centres the gamepad's axes. Sends nothing for what is at
  // rest already.
  KernelEvents LiftAll();

 private:
  Translation Touch(const GuestLine& line);
  Translation PressKey(int guest_code, bool down);
  KernelEvents MovePointer(const Point& place);
  KernelEvents TurnWheel(const GuestLine& line);
  Translation PressGamepadButton(int code, bool down);
  KernelEvents MoveGamepadAxes(const GuestLine& line);
  KernelEvents UseTouchpad(const GuestLine& line);
  KernelEvents HoldKey(KernelDevice device, int code, bool down);
  KernelEvents LiftKeys();
  KernelEvents RestGamepadAxes();

  const GuestOptions options_;
  ScreenContacts contacts_;
  std::set<std::pair<KernelDevice, int>> held_;
  std::set<int> axes_off_rest_;  // of the gamepad
  bool is_touchpad_used_ = false;
  Point pointer_;       // of a relative mouse: its last target
  int wheel_rest_ = 0;  // in 120ths of a notch
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_GUEST_TRANSLATOR_H_
