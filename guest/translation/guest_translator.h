// What the kernel's devices do for each line that the guest is sent.
#ifndef GUEST_TRANSLATION_GUEST_TRANSLATOR_H_
#define GUEST_TRANSLATION_GUEST_TRANSLATOR_H_

#include <map>
#include <set>
#include <utility>

#include "guest/line/guest_line.h"
#include "guest/translation/screen_contacts.h"
#include "guest/translation/translation.h"

namespace taviguest {

// Not bound to a thread. It remembers what is down, so that it says everything once: a key that is down does not go
// down again, a slot that is up does not go up.
class GuestTranslator {
 public:
  explicit GuestTranslator(const GuestOptions& options);

  Translation Translate(const GuestLine& line);

  // Lifts fingers, keys and buttons that are down, and brings the gamepad's axes to rest. Nothing for what is so.
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
  Point pointer_;       // of a relative mouse: where it was sent last
  int wheel_rest_ = 0;  // of a notch, in its 120th parts
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_GUEST_TRANSLATOR_H_
