#ifndef HOST_PLAY_EVDEV_DEVICE_H_
#define HOST_PLAY_EVDEV_DEVICE_H_

#include <bitset>
#include <linux/input-event-codes.h>
#include <memory>

#include "host/play/physical_device.h"

struct input_event;
struct libevdev;

namespace tavi {

// An input device of this machine's kernel. libevdev describes the device; its events are read directly, all that are
// there at once.
class EvdevDevice : public PhysicalDevice {
 public:
  // Null if it cannot be opened; `problem` is then the reason.
  static std::unique_ptr<EvdevDevice> Open(const QString& path, QString* problem);
  ~EvdevDevice() override;
  EvdevDevice(const EvdevDevice&) = delete;
  EvdevDevice& operator=(const EvdevDevice&) = delete;

  const DeviceTraits& Traits() const override { return traits_; }
  int File() const override { return file_; }
  // If the kernel's buffer overflowed, the current state is reported in place of the lost events; movement is lost.
  bool Read(const FrameTaker& take) override;
  bool IsAnyKeyDown() const override;
  QString Grab() override;
  void Ungrab() override;

 private:
  EvdevDevice(int file, libevdev* device, const QString& path);

  void Take(const input_event& event, const FrameTaker& take);
  void CatchUp();

  const int file_;
  libevdev* const device_;
  const DeviceTraits traits_;
  InputFrame frame_;                // an incomplete frame
  std::bitset<KEY_CNT> down_;       // keys and buttons, as reported or as `frame_` has them
  bool is_passed_over_ = false;     // events up to the next report are skipped, since some before it were lost
  mutable bool is_behind_ = false;  // `down_` may be outdated; it is checked at the next report
};

}  // namespace tavi

#endif  // HOST_PLAY_EVDEV_DEVICE_H_
