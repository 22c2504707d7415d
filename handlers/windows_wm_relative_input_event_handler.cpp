#include "handlers/windows_wm_relative_input_event_handler.h"

namespace taviinputmanager {

WindowsWmRelativeInputEventHandler* WindowsWmRelativeInputEventHandler::GetInstance() {
  static WindowsWmRelativeInputEventHandler instance;
  return &instance;
}

void WindowsWmRelativeInputEventHandler::OnRelativeInput(int /*dx*/, int /*dy*/, int /*interval_ms*/,
                                                         double /*factor*/) {}

}  // namespace taviinputmanager
