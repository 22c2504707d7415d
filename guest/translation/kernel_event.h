// An input event of the kernel, with its device.
#ifndef GUEST_TRANSLATION_KERNEL_EVENT_H_
#define GUEST_TRANSLATION_KERNEL_EVENT_H_

#include <string>
#include <vector>

namespace taviguest {

// The devices that guest lines are played on.
enum class KernelDevice { kScreen, kKeyboard, kPointer, kGamepad, kTouchpad };

constexpr KernelDevice kKernelDevices[] = {KernelDevice::kScreen, KernelDevice::kKeyboard, KernelDevice::kPointer,
                                           KernelDevice::kGamepad, KernelDevice::kTouchpad};

// Type, code and value are those of `struct input_event`.
struct KernelEvent {
  KernelDevice device = KernelDevice::kScreen;
  int type = 0;
  int code = 0;
  int value = 0;
};

// In writing order. The events of one moment end with a SYN_REPORT of their device.
using KernelEvents = std::vector<KernelEvent>;

void Append(KernelEvents more, KernelEvents* events);

// "screen EV_ABS ABS_MT_SLOT 11". A code without a name in the kernel is given as a number.
std::string KernelEventText(const KernelEvent& event);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_KERNEL_EVENT_H_
