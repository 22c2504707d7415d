#ifndef HOST_PLAY_DEVICE_FOLDER_H_
#define HOST_PLAY_DEVICE_FOLDER_H_

#include <QFileSystemWatcher>

#include "host/play/physical_device.h"

namespace tavi {

// The input devices of this machine: /dev/input/event0 and so on, in the order of their numbers.
class DeviceFolder : public DeviceSource {
 public:
  static constexpr char kUsualFolder[] = "/dev/input";

  explicit DeviceFolder(const QString& folder = QLatin1String(kUsualFolder)) : folder_(folder) {}

  QStringList Paths() const override;
  std::unique_ptr<PhysicalDevice> Open(const QString& path, QString* problem) override;
  // Also when the permissions of a device change: udev sets them a moment after it appears.
  void Watch(std::function<void()> changed) override;

 private:
  const QString folder_;
  QFileSystemWatcher watcher_;
};

}  // namespace tavi

#endif  // HOST_PLAY_DEVICE_FOLDER_H_
