// One input device in the kernel, made through /dev/uinput.
#ifndef GUEST_DEVICE_UINPUT_DEVICE_H_
#define GUEST_DEVICE_UINPUT_DEVICE_H_

#include <linux/input.h>
#include <string>
#include <vector>

#include "guest/translation/device_description.h"

namespace taviguest {

// Not bound to a thread. The device is there from Create on until nobody holds its descriptor any more.
class UinputDevice {
 public:
  UinputDevice() = default;
  UinputDevice(const UinputDevice&) = delete;
  UinputDevice& operator=(const UinputDevice&) = delete;
  ~UinputDevice();

  // One of errno, or 0 when the device is there.
  int Create(const DeviceDescription& description, const std::string& name);

  // "/dev/input/event5"; the directory of the device in /sys while it has no such node.
  std::string Node() const;

  // As one write(). One of errno, or 0.
  int Write(const std::vector<input_event>& events) const;

  int file() const { return file_; }

 private:
  int file_ = -1;
};

// As the kernel takes it. It stamps the time itself.
input_event InputEventOf(const KernelEvent& event);

}  // namespace taviguest

#endif  // GUEST_DEVICE_UINPUT_DEVICE_H_
