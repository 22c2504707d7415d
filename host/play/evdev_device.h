#ifndef HOST_PLAY_EVDEV_DEVICE_H_
#define HOST_PLAY_EVDEV_DEVICE_H_

#include <bitset>
#include <linux/input-event-codes.h>
#include <memory>

#include "host/play/physical_device.h"

struct input_event;
struct libevdev;

namespace tavi {

// An input device of this machine's kernel. Libevdev says what it is; its events are read as they are, all that there
// are at once.
class EvdevDevice : public PhysicalDevice {
 public:
  // Null, and `problem` says why, when it cannot be opened.
  static std::unique_ptr<EvdevDevice> Open(const QString& path, QString* problem);
  ~EvdevDevice() override;
  EvdevDevice(const EvdevDevice&) = delete;
  EvdevDevice& operator=(const EvdevDevice&) = delete;

  const DeviceTraits& Traits() const override { return traits_; }
  int File() const override { return file_; }
  // Where the kernel had no room for all, what is down now is told in place of what was lost; movement is lost.
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
  InputFrame frame_;                // of which more is to come
  std::bitset<KEY_CNT> down_;       // keys and buttons, as was told or stands in `frame_`
  bool is_passed_over_ = false;     // what comes before the next report, since something before it was lost
  mutable bool is_behind_ = false;  // `down_` may be, and is looked at with the next report
};

}  // namespace tavi

#endif  // HOST_PLAY_EVDEV_DEVICE_H_
