#ifndef GUEST_DEVICE_DEVICE_PLACE_H_
#define GUEST_DEVICE_DEVICE_PLACE_H_

#include <string>

namespace taviguest {

// Where a device of the guest is: the word for its kind ("screen"), its node ("/dev/input/event5", or its directory in
// /sys while there is no node), and its name in the kernel ("tavi screen").
struct DevicePlace {
  std::string word;
  std::string node;
  std::string name;
};

}  // namespace taviguest

#endif  // GUEST_DEVICE_DEVICE_PLACE_H_
