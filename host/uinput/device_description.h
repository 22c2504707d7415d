// What each device tells the kernel that it has.
#ifndef HOST_UINPUT_DEVICE_DESCRIPTION_H_
#define HOST_UINPUT_DEVICE_DESCRIPTION_H_

#include <QVector>

#include "host/uinput/kernel_event.h"

class QSize;

namespace tavi {

struct AbsoluteAxis {
  int code;
  int minimum;
  int maximum;  // itself included
};

struct DeviceDescription {
  QVector<int> properties;
  QVector<int> keys;  // buttons are keys
  QVector<int> relative_axes;
  QVector<AbsoluteAxis> absolute_axes;
};

// `surface` is the size of the touch surface in touch coordinates. Screen, pointer and touchpad share it.
DeviceDescription DescribeDevice(KernelDevice device, const QSize& surface);

// "screen", "keyboard": what the program calls a device. In the kernel it is "tavi screen".
const char* WordOfDevice(KernelDevice device);

// Tracking ids of the screen are 0 to this.
constexpr int kLastTrackingId = 65535;

// The kernel drops what a device has not told of.
bool HasKey(KernelDevice device, int code);

}  // namespace tavi

#endif  // HOST_UINPUT_DEVICE_DESCRIPTION_H_
