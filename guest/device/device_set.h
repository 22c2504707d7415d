// The devices that lines are played on, in the kernel.
#ifndef GUEST_DEVICE_DEVICE_SET_H_
#define GUEST_DEVICE_DEVICE_SET_H_

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "guest/device/device_keeper.h"
#include "guest/device/uinput_device.h"
#include "guest/line/guest_options.h"
#include "guest/translation/kernel_event.h"

namespace taviguest {

struct DevicePlace;

// Not bound to a thread. The devices are there until the object or the process ends, whichever way; what is held then
// is lifted first.
class DeviceSet {
 public:
  explicit DeviceSet(const GuestOptions& options) : options_(options) {}

  // Makes the devices that are there from the start, and returns when readers can have found them. What went wrong, for
  // people; empty when all devices are there.
  std::string Open();

  // Screen, keyboard, pointer, gamepad, touchpad, as far as they are there.
  std::vector<DevicePlace> Places() const;

  // To be told of devices that Write makes.
  void SetWatcher(std::function<void(const DevicePlace&)> watcher) { watcher_ = std::move(watcher); }

  // Makes the devices that `events` need and that are not there yet, and waits for their readers, as Open does. Each
  // frame is one write(). What went wrong, or empty.
  std::string Write(const KernelEvents& events);

 private:
  bool IsThereFromStart(KernelDevice device) const;
  std::string Make(KernelDevice device);
  std::string MakeMissing(const KernelEvents& events);
  DevicePlace PlaceOf(KernelDevice device) const;

  const GuestOptions options_;
  DeviceKeeper keeper_;  // outlives the program's own hold on the devices
  std::map<KernelDevice, UinputDevice> devices_;
  std::function<void(const DevicePlace&)> watcher_;
  std::vector<input_event> frame_;  // kept for its memory
};

}  // namespace taviguest

#endif  // GUEST_DEVICE_DEVICE_SET_H_
