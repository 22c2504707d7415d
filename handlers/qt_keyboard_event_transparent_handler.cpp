#include "handlers/qt_keyboard_event_transparent_handler.h"

#include <string>

#include <QKeyEvent>

#include "core/guest_command.h"
#include "core/input_logger.h"
#include "core/input_status_manager.h"
#include "core/key_code_converter.h"

namespace taviinputmanager {
namespace {

int ScanCodeOf(const QKeyEvent* event) { return static_cast<int>(event->nativeScanCode()); }

void LogKey(int qt_key, unsigned virtual_key, unsigned scancode) {
  InputLogger* log = InputLogger::GetInstance();
  if (!log->IsDebugOn()) return;
  log->Debug("keyboard press, qt key: " + std::to_string(qt_key));
  log->Debug("keyboard press, windows virtual key: " + std::to_string(virtual_key));
  log->Debug("keyboard press, scan code: " + std::to_string(scancode));
}

}  // namespace

bool QtKeyboardEventTransparentHandler::OnKeyPress(QKeyEvent* event) {
  LogKey(event->key(), event->nativeVirtualKey(), event->nativeScanCode());
  Press(ScanCodeOf(event));
  return true;
}

bool QtKeyboardEventTransparentHandler::OnKeyRelease(QKeyEvent* event) {
  Release(ScanCodeOf(event));
  return true;
}

void QtKeyboardEventTransparentHandler::SetVirtualKey(int code, bool press) {
  if (!press) return Release(code);
  LogKey(code, static_cast<unsigned>(code), static_cast<unsigned>(code));
  Press(code);
}

void QtKeyboardEventTransparentHandler::Press(int scancode) {
  const int code = KeyCodeConverter::GetInstance()->KeyToGuestCode(scancode);
  InputStatusManager::GetInstance()->AddHeldKey(code);  // first, because its release may come during the call
  SendEvent(guest_command::KeyPress(code));
}

void QtKeyboardEventTransparentHandler::Release(int scancode) {
  const int code = KeyCodeConverter::GetInstance()->KeyToGuestCode(scancode);
  InputStatusManager::GetInstance()->RemoveHeldKey(code);
  SendEvent(guest_command::KeyRelease(code));
}

bool QtKeyboardEventTransparentHandler::AcceptsAutoRepeat(QKeyEvent* /*event*/) { return false; }

}  // namespace taviinputmanager
