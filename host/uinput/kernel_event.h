// One input event as the kernel knows it, and the device that it is of.
#ifndef HOST_UINPUT_KERNEL_EVENT_H_
#define HOST_UINPUT_KERNEL_EVENT_H_

#include <QString>
#include <QVector>

namespace tavi {

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

// In order of writing. The events of one moment end in a SYN_REPORT of their device.
using KernelEvents = QVector<KernelEvent>;

// "screen EV_ABS ABS_MT_SLOT 11". A code that the kernel has no name for stands as its number.
QString KernelEventText(const KernelEvent& event);

}  // namespace tavi

#endif  // HOST_UINPUT_KERNEL_EVENT_H_
