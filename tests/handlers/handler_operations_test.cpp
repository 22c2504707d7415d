// The handlers by themselves, without the routing.
#include <QKeyEvent>
#include <QMouseEvent>

#include "handlers/joystick_event_simulate_handler.h"
#include "handlers/joystick_event_transparent_handler.h"
#include "handlers/mouse_transparent_manager.h"
#include "handlers/qt_keyboard_event_text_handler.h"
#include "handlers/qt_keyboard_event_transparent_handler.h"
#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"
#include "handlers/qt_mouse_event_transparent_handler.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/joystick_event.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::JoystickEvent;

constexpr int kScanA = 30;

class HandlerOperations : public Story {
 protected:
  static QKeyEvent KeyEvent(QEvent::Type type, int scan) {
    return {type, Qt::Key_A, Qt::NoModifier, static_cast<quint32>(scan), 'A', 0, QStringLiteral("a")};
  }
  static QMouseEvent MouseEvent(QEvent::Type type, Qt::MouseButton button) {
    return {type, QPointF(10, 20), QPointF(10, 20), button, button, Qt::NoModifier};
  }
  static JoystickButtonEvent ButtonEvent(QEvent::Type type, const QString& name) { return {type, name, 0, 1}; }
};

TEST_F(HandlerOperations, TextTakesPressAndReleaseAndTypesOnThePress) {
  Load();
  auto* handler = QtKeyboardEventTextHandler::GetInstance();
  QKeyEvent press = KeyEvent(QEvent::KeyPress, kScanA);
  QKeyEvent release = KeyEvent(QEvent::KeyRelease, kScanA);
  EXPECT_TRUE(handler->OnKeyPress(&press));
  EXPECT_WIRE("0ms text TEXT:a");
  EXPECT_TRUE(handler->OnKeyRelease(&release));
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(handler->AcceptsAutoRepeat(&press));
}

TEST_F(HandlerOperations, TransparentTakesEveryKey) {
  Load();
  auto* handler = QtKeyboardEventTransparentHandler::GetInstance();
  QKeyEvent press = KeyEvent(QEvent::KeyPress, kScanA);
  QKeyEvent release = KeyEvent(QEvent::KeyRelease, kScanA);
  EXPECT_TRUE(handler->OnKeyPress(&press));
  EXPECT_TRUE(handler->OnKeyRelease(&release));
  EXPECT_WIRE("0ms 1:KBDPR:30:1", "0ms 1:KBDRL:30:0");
  EXPECT_FALSE(handler->AcceptsAutoRepeat(&press));
}

TEST_F(HandlerOperations, SimulateTakesWhatIsMapped) {
  Add<ConfigItem>("Click", "A", {0.5, 0.5});
  Load();
  auto* handler = QtKeyboardMouseEventSimulateHandler::GetInstance();
  QKeyEvent press = KeyEvent(QEvent::KeyPress, kScanA);
  QKeyEvent release = KeyEvent(QEvent::KeyRelease, kScanA);
  EXPECT_TRUE(handler->OnKeyPress(&press));
  EXPECT_TRUE(handler->OnKeyRelease(&release));
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
  QKeyEvent other = KeyEvent(QEvent::KeyPress, kScanA + 1);
  EXPECT_FALSE(handler->OnKeyPress(&other));
  EXPECT_WIRE_NONE();
  EXPECT_FALSE(handler->AcceptsAutoRepeat(&press));
}

TEST_F(HandlerOperations, TheLeftButtonIsAFingerOrAButtonOfTheGuest) {
  Load();
  QMouseEvent press = MouseEvent(QEvent::MouseButtonPress, Qt::LeftButton);
  QMouseEvent move = MouseEvent(QEvent::MouseMove, Qt::NoButton);
  QMouseEvent release = MouseEvent(QEvent::MouseButtonRelease, Qt::LeftButton);
  auto* simulate = QtKeyboardMouseEventSimulateHandler::GetInstance();
  simulate->OnMousePress(&press);
  simulate->OnMouseMove(&move);
  simulate->OnMouseRelease(&release);
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:10:20", "0ms 1:SLOTPRESS:1:1:1:1:10:20", "0ms 1:SLOTRELEASE:1");
  auto* transparent = QtMouseEventTransparentHandler::GetInstance();
  transparent->OnMousePress(&press);
  transparent->OnMouseMove(&move);
  transparent->OnMouseRelease(&release);
  EXPECT_WIRE("0ms 1:KBDPR:272:1", "0ms 1:MOUSEMOVE_REL:10:20", "0ms 1:KBDRL:272:0");
}

TEST_F(HandlerOperations, GamepadButtonsAreKeysOrTheGuestsButtons) {
  Add<ConfigItem>("Click", "Pad A", {0.5, 0.5});
  LoadJoystick();
  Load();
  JoystickButtonEvent press = ButtonEvent(JoystickEvent::ButtonPress, "A");
  JoystickButtonEvent release = ButtonEvent(JoystickEvent::ButtonRelease, "A");
  auto* simulate = JoystickEventSimulateHandler::GetInstance();
  EXPECT_TRUE(simulate->OnButtonPress(&press, 0));
  EXPECT_TRUE(simulate->OnButtonRelease(&release, 0));
  EXPECT_FALSE(simulate->OnButtonRelease(&release, 0));
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
  auto* transparent = JoystickEventTransparentHandler::GetInstance();
  EXPECT_TRUE(transparent->OnButtonPress(&press, 0));
  EXPECT_TRUE(transparent->OnButtonRelease(&release, 0));
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1", "0ms 1:GPDBUTTON:304:0");
}

TEST_F(HandlerOperations, ThePointerGivesCommandsToKeep) {
  Load();
  MouseTransparentManager* pointer = MouseTransparentManager::GetInstance();
  EXPECT_TRUE(pointer->BuildMoveCommand().isEmpty());
  pointer->SetPosition(3, 4);
  const QString move = pointer->BuildMoveCommand();
  EXPECT_TRUE(move.endsWith(QLatin1String(":3:4\n")));
  const QString press = pointer->BuildButtonPressCommand(Qt::RightButton);
  const QString release = pointer->BuildButtonReleaseCommand(Qt::RightButton);
  EXPECT_EQ("KBDPR:273:1\nKBDRL:273:0\n", (press + release).toStdString());
}

}  // namespace
}  // namespace taviinputmanager
