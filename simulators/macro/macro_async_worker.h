// The common base of the workers of a macro key.
#ifndef SIMULATORS_MACRO_MACRO_ASYNC_WORKER_H_
#define SIMULATORS_MACRO_MACRO_ASYNC_WORKER_H_

#include "core/event_handler.h"

class QTimer;

namespace tavikeymapmanager {
struct ConfigKey;
struct MacroConfigItem;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

// Main thread, despite the name: the timer lets other input in between commands.
class MacroAsyncWorker : public EventHandler {
  Q_OBJECT

 public:
  // The caller owns `item` and `key`, which are valid during the call.
  virtual void Press(tavikeymapmanager::MacroConfigItem* item, tavikeymapmanager::ConfigKey* key) = 0;
  virtual void Release(tavikeymapmanager::MacroConfigItem* item, tavikeymapmanager::ConfigKey* key) = 0;
  virtual void OnTimer() = 0;

 public Q_SLOTS:
  void TimerOutTime();

 protected:
  MacroAsyncWorker();

  QTimer* Timer() const { return timer_; }

 private:
  QTimer* timer_;  // a child; precise
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_ASYNC_WORKER_H_
