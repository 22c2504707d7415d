// The kernel devices on which lines are played.
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

// Not bound to a thread. The devices exist until the object or the process ends, in whatever way; what is held then is
// lifted first.
class DeviceSet {
 public:
  explicit DeviceSet(const GuestOptions& options) : options_(options) {}

  // Creates the initial devices, and returns when readers can have found them. Returns the error, for display; empty if
  // all devices exist.
  std::string Open();

  // Screen, keyboard, pointer, gamepad, touchpad, as far as they exist.
  std::vector<DevicePlace> Places() const;

  // Is called for devices that Write creates.
  void SetWatcher(std::function<void(const DevicePlace&)> watcher) { watcher_ = std::move(watcher); }

  // Creates the devices that `events` need and that do not exist yet, and waits for their readers, like Open. Each
  // frame is one write(). Returns the error, or an empty string.
  std::string Write(const KernelEvents& events);

 private:
  bool IsThereFromStart(KernelDevice device) const;
  std::string Make(KernelDevice device);
  std::string MakeMissing(const KernelEvents& events);
  DevicePlace PlaceOf(KernelDevice device) const;

  const GuestOptions options_;
  DeviceKeeper keeper_;  // keeps the devices open when the program ends
  std::map<KernelDevice, UinputDevice> devices_;
  std::function<void(const DevicePlace&)> watcher_;
  std::vector<input_event> frame_;  // kept to reuse its memory
};

}  // namespace taviguest

#endif  // GUEST_DEVICE_DEVICE_SET_H_
