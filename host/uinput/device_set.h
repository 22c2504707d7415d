// The devices in the kernel, through /dev/uinput.
#ifndef HOST_UINPUT_DEVICE_SET_H_
#define HOST_UINPUT_DEVICE_SET_H_

#include <map>
#include <memory>

#include <QStringList>

#include "host/uinput/kernel_event.h"

struct libevdev_uinput;
class QSize;

namespace tavi {

struct DestroyUinputDevice {
  void operator()(libevdev_uinput* device) const;
};

// Not bound to a thread. The devices are there from Open until the object or the process ends, whichever way; the
// kernel lets go of what is held then.
class DeviceSet {
 public:
  // `surface` as in DescribeDevice. What went wrong, for people; empty when all devices are there.
  QString Open(const QSize& surface);

  // "screen /dev/input/event5" for each.
  QStringList Places() const;

  // What went wrong, or empty.
  QString Write(const KernelEvents& events);

 private:
  std::map<KernelDevice, std::unique_ptr<libevdev_uinput, DestroyUinputDevice>> devices_;
};

}  // namespace tavi

#endif  // HOST_UINPUT_DEVICE_SET_H_
