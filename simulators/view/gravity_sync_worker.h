// The tilt of the guest's gravity sensor while direction keys are held.
#ifndef SIMULATORS_VIEW_GRAVITY_SYNC_WORKER_H_
#define SIMULATORS_VIEW_GRAVITY_SYNC_WORKER_H_

#include <QTimer>

#include "core/event_handler.h"

namespace tavikeymapmanager {
struct ConfigKey;
struct GravityConfigItem;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class GravityFakeSlotManager;

// Sends no line: the tilt goes to the host's SetGravity.
//
//   first key: 8 ms ---- tick ---- 8 ms ---- tick ...
//     each tick the keys change the offset by a step, and the offset is added to the tilt, so that it accelerates
//   any key up: tilt and offset are 0 at once, and build up again by the keys that stay
//   last key up: and the ticks end
//
// Main thread. Reads the item only during a call.
class GravitySyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static GravitySyncWorker* GetInstance();

  // Presses or releases one of the item's four keys. Does nothing for null.
  virtual void Press(const tavikeymapmanager::GravityConfigItem* item, const tavikeymapmanager::ConfigKey* key);
  virtual void Release(const tavikeymapmanager::GravityConfigItem* item, const tavikeymapmanager::ConfigKey* key);
  // Resets the keys and lays the sensor flat; the host is called in any case.
  void Stop();

 public Q_SLOTS:
  void TimerOutTime();

 private:
  struct Tilt {
    double x;
    double y;
    double z;

    bool operator==(const Tilt& other) const { return x == other.x && y == other.y && z == other.z; }
  };
  // The tilt without a keymap: the value that was last sent without keys.
  static constexpr Tilt kNothingSent{-1.0, -1.0, -1.0};

  GravitySyncWorker();

  // Resets the tilt and reports that to the host.
  void LevelOut();
  static void SendTilt(const Tilt& tilt);

  GravityFakeSlotManager* keys_;  // the singleton: the held keys, and the offset that they have accumulated
  QTimer timer_;                  // runs while a key is held
  double step_ = 0;               // on the offset, per tick
  Tilt gravity_{0, 0, 0};         // current; y never changes
  Tilt last_ = kNothingSent;      // sent last
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_GRAVITY_SYNC_WORKER_H_
