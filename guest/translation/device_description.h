// The capabilities that each device reports to the kernel.
#ifndef GUEST_TRANSLATION_DEVICE_DESCRIPTION_H_
#define GUEST_TRANSLATION_DEVICE_DESCRIPTION_H_

#include <vector>

#include "guest/line/guest_options.h"
#include "guest/translation/kernel_event.h"

namespace taviguest {

struct AbsoluteAxis {
  int code;
  int minimum;
  int maximum;         // inclusive
  int resolution = 0;  // units per millimetre; 0: not reported
};

struct DeviceDescription {
  std::vector<int> properties;
  std::vector<int> keys;  // including buttons
  std::vector<int> relative_axes;
  std::vector<AbsoluteAxis> absolute_axes;
};

DeviceDescription DescribeDevice(KernelDevice device, const GuestOptions& options);

// "screen", "keyboard": the device's name in messages. In the kernel it is "tavi screen".
const char* WordOfDevice(KernelDevice device);

// Slots of the screen, 0 to 25.
constexpr int kSlotCount = 26;

// Tracking ids of the screen are 0 to this; the other value means that the contact of the slot was released.
constexpr int kLastTrackingId = 65535;
constexpr int kNoTrackingId = -1;

// The kernel drops events that a device has not announced.
bool HasKey(KernelDevice device, int code, const GuestOptions& options);

// One frame that releases everything on a device of any kind: contacts and keys up, sticks centred.
KernelEvents RestFrame(KernelDevice device, const GuestOptions& options);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_DEVICE_DESCRIPTION_H_
