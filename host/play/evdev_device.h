#ifndef HOST_PLAY_EVDEV_DEVICE_H_
#define HOST_PLAY_EVDEV_DEVICE_H_

#include <memory>

#include "host/play/physical_device.h"

struct libevdev;

namespace tavi {

// An input device of this machine's kernel.
class EvdevDevice : public PhysicalDevice {
 public:
  // Null if it cannot be opened; `problem` is then the reason.
  static std::unique_ptr<EvdevDevice> Open(const QString& path, QString* problem);
  ~EvdevDevice() override;
  EvdevDevice(const EvdevDevice&) = delete;
  EvdevDevice& operator=(const EvdevDevice&) = delete;

  const DeviceTraits& Traits() const override { return traits_; }
  int File() const override { return file_; }
  // If the kernel's buffer overflowed, the current state is reported in place of the lost events.
  bool Read(const FrameTaker& take) override;
  bool IsAnyKeyDown() const override;
  QString Grab() override;
  void Ungrab() override;

 private:
  EvdevDevice(int file, libevdev* device, const QString& path);

  const int file_;
  libevdev* const device_;
  const DeviceTraits traits_;
  InputFrame frame_;  // an incomplete frame
};

}  // namespace tavi

#endif  // HOST_PLAY_EVDEV_DEVICE_H_
