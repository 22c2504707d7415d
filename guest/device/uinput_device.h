// One input device in the kernel, created through /dev/uinput.
#ifndef GUEST_DEVICE_UINPUT_DEVICE_H_
#define GUEST_DEVICE_UINPUT_DEVICE_H_

#include <linux/input.h>
#include <string>
#include <vector>

#include "guest/translation/device_description.h"

namespace taviguest {

// Not bound to a thread. The device exists from Create until its descriptor is closed everywhere.
class UinputDevice {
 public:
  UinputDevice() = default;
  UinputDevice(const UinputDevice&) = delete;
  UinputDevice& operator=(const UinputDevice&) = delete;
  ~UinputDevice();

  // An errno value, or 0 if the device exists.
  int Create(const DeviceDescription& description, const std::string& name);

  // "/dev/input/event5"; the device's directory in /sys while it has no such node.
  std::string Node() const;

  // As one write(). Returns an errno value, or 0.
  int Write(const std::vector<input_event>& events) const;

  int file() const { return file_; }

 private:
  int file_ = -1;
};

// In the kernel's format. The kernel sets the time itself.
input_event InputEventOf(const KernelEvent& event);

}  // namespace taviguest

#endif  // GUEST_DEVICE_UINPUT_DEVICE_H_
