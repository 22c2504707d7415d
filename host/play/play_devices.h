#ifndef HOST_PLAY_PLAY_DEVICES_H_
#define HOST_PLAY_PLAY_DEVICES_H_

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include "host/play/device_grab.h"
#include "host/play/physical_device.h"

namespace tavi {

class DeviceNotifier;

// The player's keyboards and mice, including those that are connected or disconnected later. They are always read, so
// that reserved keys work at any time; they are grabbed while that is wanted.
//
// Main thread.
class PlayDevices : public QObject {
  Q_OBJECT

 public:
  // The result of examining a path.
  struct Listed {
    DeviceTraits traits;
    QString problem;  // why it cannot be opened; then only the path of the traits is known
    QString refusal;  // why it is not taken
  };

  // `wanted` are names or paths; if empty, all keyboards and mice are taken. `source` outlives this object.
  PlayDevices(DeviceSource* source, const QStringList& wanted, QObject* parent = nullptr);
  ~PlayDevices() override;

  // All devices of a source, and whether each would be taken. Keeps none open.
  static std::vector<Listed> List(DeviceSource* source, const QStringList& wanted);

  // Receives what devices report; it is faster than a signal. `device` identifies the device as long as the program
  // runs; while it is not grabbed, other programs get the same events. Set it before Start.
  using Taker = std::function<void(int device, const InputFrame& frame, bool is_grabbed)>;
  void SetTaker(Taker taker) { taker_ = std::move(taker); }

  // Opens the existing devices, and follows changes from now on.
  void Start();
  void SetGrabWanted(bool wanted);
  // Reads the available data of a device. Devices with a descriptor are read automatically.
  void Read(const QString& path);

  int Count() const { return static_cast<int>(devices_.size()); }
  int CountOf(DeviceKind kind) const;
  // How many of them have this state.
  int CountOf(DeviceGrab::State state) const;

 Q_SIGNALS:
  // It was disconnected; what was down on it is released.
  void Gone(int device);
  // A device was connected or disconnected, or a grab changed.
  void Changed();
  // Messages for the user: what was connected or disconnected, what was refused and why.
  void Told(const QString& text);

 private:
  struct Device {
    int id;
    std::unique_ptr<PhysicalDevice> device;
    std::unique_ptr<DeviceNotifier> notifier;
    std::unique_ptr<DeviceGrab> grab;
    bool is_refusal_told = false;
  };

  void Look();
  void TryToTake(const QString& path);
  void Take(std::unique_ptr<PhysicalDevice> device);
  void Remove(const QString& path);
  void UpdateGrab(Device* device);
  void TellRefusal(Device* device);
  void Retry();
  void TellOnce(const QString& path, const QString& problem);

  DeviceSource* const source_;
  const QStringList wanted_;
  Taker taker_;
  bool is_grab_wanted_ = false;
  int next_id_ = 1;
  std::map<QString, Device> devices_;  // by path
  QSet<QString> passed_over_;          // paths that were examined and not taken
  std::map<QString, QString> told_;    // problems, by path
  QTimer retrying_;
};

}  // namespace tavi

#endif  // HOST_PLAY_PLAY_DEVICES_H_
