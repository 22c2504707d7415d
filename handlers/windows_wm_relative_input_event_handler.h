// The ways of relative mouse counts.
#ifndef HANDLERS_WINDOWS_WM_RELATIVE_INPUT_EVENT_HANDLER_H_
#define HANDLERS_WINDOWS_WM_RELATIVE_INPUT_EVENT_HANDLER_H_

#include "core/event_handler.h"

namespace taviinputmanager {

class WindowsWmRelativeInputEventHandler : public EventHandler {
 public:
  static WindowsWmRelativeInputEventHandler* GetInstance();

  // The last two are the keymap's settings for the guest's own pointer.
  void OnRelativeInput(int dx, int dy, int interval_ms, double factor);

 private:
  WindowsWmRelativeInputEventHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_WINDOWS_WM_RELATIVE_INPUT_EVENT_HANDLER_H_
