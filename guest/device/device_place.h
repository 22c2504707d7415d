#ifndef GUEST_DEVICE_DEVICE_PLACE_H_
#define GUEST_DEVICE_DEVICE_PLACE_H_

#include <string>

namespace taviguest {

// Where a device of the guest is: the word of its kind ("screen"), its node ("/dev/input/event5"; the directory in /sys
// while there is no node), and the name that the kernel knows it by ("tavi screen").
struct DevicePlace {
  std::string word;
  std::string node;
  std::string name;
};

}  // namespace taviguest

#endif  // GUEST_DEVICE_DEVICE_PLACE_H_
