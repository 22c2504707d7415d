// Distributes the relative mouse counts that the host gets from its window messages.
#ifndef HANDLERS_WINDOWS_WM_RELATIVE_INPUT_EVENT_HANDLER_H_
#define HANDLERS_WINDOWS_WM_RELATIVE_INPUT_EVENT_HANDLER_H_

#include "core/event_handler.h"

namespace taviinputmanager {

class InputStatusManager;
class SpellEventSimulator;
class StaringAndFireEventSimulator;

// Stateless. Main thread.
class WindowsWmRelativeInputEventHandler : public EventHandler {
 public:
  static WindowsWmRelativeInputEventHandler* GetInstance() {
    static WindowsWmRelativeInputEventHandler instance;
    return &instance;
  }

  // To the guest's own pointer, unless view control or observing is on; then to a cast in progress, otherwise to the
  // view. `interval_ms`, the minimum time between lines, and `factor`, display pixels per count, are the keymap's
  // settings for the pointer; casts and views use those of their items.
  void OnRelativeInput(int dx, int dy, int interval_ms, double factor);

 private:
  WindowsWmRelativeInputEventHandler();

  // The singletons.
  const InputStatusManager* const status_;
  SpellEventSimulator* const spell_;
  StaringAndFireEventSimulator* const view_;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_WINDOWS_WM_RELATIVE_INPUT_EVENT_HANDLER_H_
