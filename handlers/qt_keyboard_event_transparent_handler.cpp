#include "handlers/qt_keyboard_event_transparent_handler.h"

#include <string>

#include <QKeyEvent>

#include "core/guest_command.h"
#include "core/input_logger.h"
#include "core/input_status_manager.h"
#include "core/key_code_converter.h"

namespace taviinputmanager {
namespace {

int GuestCodeOf(const QKeyEvent* event) {
  return KeyCodeConverter::GetInstance()->KeyToGuestCode(static_cast<int>(event->nativeScanCode()));
}

void LogKey(const QKeyEvent* event) {
  InputLogger* log = InputLogger::GetInstance();
  if (!log->IsDebugOn()) return;
  log->Debug("keyboard press, qt key: " + std::to_string(event->key()));
  log->Debug("keyboard press, windows virtual key: " + std::to_string(event->nativeVirtualKey()));
  log->Debug("keyboard press, scan code: " + std::to_string(event->nativeScanCode()));
}

}  // namespace

bool QtKeyboardEventTransparentHandler::OnKeyPress(QKeyEvent* event) {
  LogKey(event);
  const int code = GuestCodeOf(event);
  InputStatusManager::GetInstance()->AddHeldKey(code);  // first, because its release may come during the call
  SendEvent(guest_command::KeyPress(code));
  return true;
}

bool QtKeyboardEventTransparentHandler::OnKeyRelease(QKeyEvent* event) {
  const int code = GuestCodeOf(event);
  InputStatusManager::GetInstance()->RemoveHeldKey(code);
  SendEvent(guest_command::KeyRelease(code));
  return true;
}

bool QtKeyboardEventTransparentHandler::AcceptsAutoRepeat(QKeyEvent* /*event*/) { return false; }

}  // namespace taviinputmanager
