#ifndef HOST_PLAY_DEVICE_NOTIFIER_H_
#define HOST_PLAY_DEVICE_NOTIFIER_H_

#include <QSocketNotifier>
#include <QString>

namespace tavi {

class PlayDevices;

// Has a device read when it has something to say. It does so from the notifier's event: the two signals that Qt makes
// of it are a good part of the way from a key to its touch.
//
// Main thread. It may be deleted by what it has read.
class DeviceNotifier : public QSocketNotifier {
 public:
  // `devices` outlives this. `file` is that of the device at `path`.
  DeviceNotifier(PlayDevices* devices, int file, const QString& path);

 protected:
  bool event(QEvent* event) override;

 private:
  PlayDevices* const devices_;
  const QString path_;
};

}  // namespace tavi

#endif  // HOST_PLAY_DEVICE_NOTIFIER_H_
