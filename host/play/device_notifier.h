#ifndef HOST_PLAY_DEVICE_NOTIFIER_H_
#define HOST_PLAY_DEVICE_NOTIFIER_H_

#include <QSocketNotifier>
#include <QString>

namespace tavi {

class PlayDevices;

// Has a device read when data is available. It reads in the notifier's event: the two signals that Qt makes of it take
// a considerable part of the time from a key to its touch.
//
// Main thread. The read may delete this object.
class DeviceNotifier : public QSocketNotifier {
 public:
  // `devices` outlives this object. `file` is the descriptor of the device at `path`.
  DeviceNotifier(PlayDevices* devices, int file, const QString& path);

 protected:
  bool event(QEvent* event) override;

 private:
  PlayDevices* const devices_;
  const QString path_;
};

}  // namespace tavi

#endif  // HOST_PLAY_DEVICE_NOTIFIER_H_
