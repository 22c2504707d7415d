#include "handlers/qt_keyboard_event_text_handler.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include "core/guest_command.h"
#include "core/key_code_converter.h"

namespace taviinputmanager {
namespace {

constexpr int kBackspaceCode = 14;
constexpr int kEnterCode = 28;
constexpr int kVCode = 47;

bool IsPaste(const QKeyEvent* event, int code) {
  return code == kVCode && event->modifiers().testFlag(Qt::ControlModifier);
}

QString ClipboardText() { return QGuiApplication::clipboard()->text(QClipboard::Clipboard); }

}  // namespace

QtKeyboardEventTextHandler* QtKeyboardEventTextHandler::GetInstance() {
  static QtKeyboardEventTextHandler instance;
  return &instance;
}

bool QtKeyboardEventTextHandler::OnKeyPress(QKeyEvent* event) {
  const KeyCodeConverter* converter = KeyCodeConverter::GetInstance();
  const int code = converter->KeyToGuestCode(static_cast<int>(event->nativeScanCode()));
  if (code == kEscapeCode) {
    Click(kBackCode);
  } else if (code == kEnterCode) {
    SendText(guest_command::TextControl(QStringLiteral("ENTER")));
  } else if (code == kBackspaceCode) {
    SendText(guest_command::TextControl(QStringLiteral("BACKSPACE")));
  } else if (converter->IsControlKey(code)) {
    Click(code);
  } else if (IsPaste(event, code)) {
    SendText(guest_command::Text(ClipboardText()));
  } else {
    SendText(guest_command::Text(event->text()));  // even if it is empty, as for Shift alone
  }
  return true;
}

bool QtKeyboardEventTextHandler::OnKeyRelease(QKeyEvent* /*event*/) { return true; }

void QtKeyboardEventTextHandler::Click(int code) {
  SendEvent(guest_command::KeyPress(code));
  SendEvent(guest_command::KeyRelease(code));
}

}  // namespace taviinputmanager
