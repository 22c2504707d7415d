// The contact that turns the view while direction keys are held.
#ifndef SIMULATORS_VIEW_EYE_ASYNC_WORKER_H_
#define SIMULATORS_VIEW_EYE_ASYNC_WORKER_H_

#include <QSize>
#include <QTimer>

#include "core/event_handler.h"

namespace tavikeymapmanager {
struct ConfigKey;
struct EyeConfigItem;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class EyeSlotManager;

// Uses slot 7.
//
//   first key: press at home ---- 8 ms ---- step ---- 8 ms ---- step ...    last key up: 8 ms, lift
//     a step past the window's padding: lift; the next tick steps on from home and presses there
//
// Main thread; despite its name it has no thread of its own. Reads the item only during a call.
class EyeAsyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static EyeAsyncWorker* GetInstance();

  // Presses or releases one of the item's four keys. Does nothing for null.
  virtual void Press(const tavikeymapmanager::EyeConfigItem* item, const tavikeymapmanager::ConfigKey* key);
  virtual void Release(const tavikeymapmanager::EyeConfigItem* item, const tavikeymapmanager::ConfigKey* key);
  // Resets the keys and releases the contact; the release is sent in any case.
  void Stop();

 public Q_SLOTS:
  void TimerOutTime();

 private:
  EyeAsyncWorker();

  void Update(const tavikeymapmanager::EyeConfigItem* item, const tavikeymapmanager::ConfigKey* key, bool pressed);
  void Start(const tavikeymapmanager::EyeConfigItem& item);
  void LiftFinger();
  bool IsInWindow() const;

  EyeSlotManager* finger_;  // the singleton
  QTimer timer_;            // runs while a key is held
  QSize display_;           // at the first key, pixels
  int step_ = 0;            // pixels per tick
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_EYE_ASYNC_WORKER_H_
