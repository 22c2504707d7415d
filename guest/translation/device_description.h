// What each device tells the kernel that it has.
#ifndef GUEST_TRANSLATION_DEVICE_DESCRIPTION_H_
#define GUEST_TRANSLATION_DEVICE_DESCRIPTION_H_

#include <vector>

#include "guest/line/guest_options.h"
#include "guest/translation/kernel_event.h"

namespace taviguest {

struct AbsoluteAxis {
  int code;
  int minimum;
  int maximum;         // itself included
  int resolution = 0;  // units a millimetre; 0: not told
};

struct DeviceDescription {
  std::vector<int> properties;
  std::vector<int> keys;  // buttons are keys
  std::vector<int> relative_axes;
  std::vector<AbsoluteAxis> absolute_axes;
};

DeviceDescription DescribeDevice(KernelDevice device, const GuestOptions& options);

// "screen", "keyboard": what the program calls a device. In the kernel it is "tavi screen".
const char* WordOfDevice(KernelDevice device);

// Slots of the screen, 0 to 25.
constexpr int kSlotCount = 26;

// Tracking ids of the screen are 0 to this; the other one says that the finger of the slot went up.
constexpr int kLastTrackingId = 65535;
constexpr int kNoTrackingId = -1;

// The kernel drops what a device has not told of.
bool HasKey(KernelDevice device, int code, const GuestOptions& options);

// Everything up and at rest, as one frame, whatever the device does: fingers and keys up, sticks centred.
KernelEvents RestFrame(KernelDevice device, const GuestOptions& options);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_DEVICE_DESCRIPTION_H_
