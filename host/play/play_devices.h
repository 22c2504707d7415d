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

// The keyboards and mice that are played with: those that are there, and those that come and go meanwhile. They are
// read all the time, so that the keys that the player needs in any case are heard; they are grabbed while that is
// wanted.
//
// Main thread.
class PlayDevices : public QObject {
  Q_OBJECT

 public:
  // What became of a path that was looked at.
  struct Listed {
    DeviceTraits traits;
    QString problem;  // why it cannot be opened; then of the traits only the path is known
    QString refusal;  // why it is not taken
  };

  // `wanted` are names or paths; without any, all keyboards and mice are taken. `source` outlives this.
  PlayDevices(DeviceSource* source, const QStringList& wanted, QObject* parent = nullptr);
  ~PlayDevices() override;

  // All devices of a source, and whether each would be taken. Nothing is kept.
  static std::vector<Listed> List(DeviceSource* source, const QStringList& wanted);

  // Gets what a device reports, which is faster than a signal. `device` is its own for as long as the program runs;
  // while it is not grabbed, others hear the same. To be set before Start.
  using Taker = std::function<void(int device, const InputFrame& frame, bool is_grabbed)>;
  void SetTaker(Taker taker) { taker_ = std::move(taker); }

  // Opens what is there, and follows what comes and goes from here on.
  void Start();
  void SetGrabWanted(bool wanted);
  // Takes what a device has to say. Devices with a file are read as it comes.
  void Read(const QString& path);

  int Count() const { return static_cast<int>(devices_.size()); }
  int CountOf(DeviceKind kind) const;
  // How many of them have this state.
  int CountOf(DeviceGrab::State state) const;

 Q_SIGNALS:
  // It is gone, with whatever was down on it.
  void Gone(int device);
  // A device came or went, or a grab changed.
  void Changed();
  // News for people: what came and went, what is refused and why.
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
  QSet<QString> passed_over_;          // paths that were looked at and are not taken
  std::map<QString, QString> told_;    // problems, by path
  QTimer retrying_;
};

}  // namespace tavi

#endif  // HOST_PLAY_PLAY_DEVICES_H_
