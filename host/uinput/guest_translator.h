// What the kernel's devices do for each line that the guest is sent.
#ifndef HOST_UINPUT_GUEST_TRANSLATOR_H_
#define HOST_UINPUT_GUEST_TRANSLATOR_H_

#include <set>
#include <utility>

#include "host/uinput/screen_contacts.h"
#include "host/uinput/translation.h"

namespace tavi {

// Not bound to a thread. It remembers what is down, so that it says everything once: a key that is down does not go
// down again, a slot that is up does not go up.
class GuestTranslator {
 public:
  explicit GuestTranslator(const QSize& surface) : surface_(surface), contacts_(surface) {}

  Translation Translate(const GuestLine& line);

 private:
  Translation Touch(const GuestLine& line);
  Translation PressKey(int guest_code, bool down);
  KernelEvents MovePointer(const QPoint& place) const;
  KernelEvents TurnWheel(const GuestLine& line);
  Translation PressGamepadButton(int code, bool down);
  KernelEvents MoveGamepadAxes(const GuestLine& line) const;
  KernelEvents UseTouchpad(const GuestLine& line) const;
  KernelEvents HoldKey(KernelDevice device, int code, bool down);

  const QSize surface_;
  ScreenContacts contacts_;
  std::set<std::pair<KernelDevice, int>> held_;
  int wheel_rest_ = 0;  // of a notch, in its 120th parts
};

}  // namespace tavi

#endif  // HOST_UINPUT_GUEST_TRANSLATOR_H_
