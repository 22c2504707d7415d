// A host whose answers and events are arbitrary numbers, with keymaps of the same kind. The sanitizers detect overflows
// of ints; this test checks the lines.
#include <limits>
#include <random>

#include <QMouseEvent>
#include <QRegularExpression>
#include <QWheelEvent>

#include "fuzz/fuzz_keymaps.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "keymap/joystick_event.h"
#include "qt/touch_events.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::JoystickEvent;

constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();

class AbsurdHost : public Story, public testing::WithParamInterface<unsigned> {
 protected:
  AbsurdHost() : random_(GetParam()) {}

  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  bool OneIn(int count) { return Below(count) == 0; }
  int Integer() {
    constexpr int kOdd[] = {kHighest, kHighest - 1, kLowest, kLowest + 1, 0, -1, 1, kHighest / 2, kLowest / 2};
    return OneIn(2) ? kOdd[Below(std::size(kOdd))] : Below(1280);
  }
  double Number() {
    constexpr double kOdd[] = {1e300, -1e300, 1e18, -1e18, 2147483647.5, -2147483648.5, 0.0, -0.5};
    return OneIn(2) ? kOdd[Below(std::size(kOdd))] : Below(1280);
  }
  QPoint Pixel() { return {Integer(), Integer()}; }
  QPointF Place() { return {Number(), Number()}; }
  QRect Rect() {
    QRect rect;
    rect.setCoords(Integer(), Integer(), Integer(), Integer());
    return rect;
  }

  void ChangeAnswers() {
    const bool is_sane = OneIn(3);
    Host().window = {Integer(), Integer(), is_sane ? 1280 : Integer(), is_sane ? 720 : Integer()};
    Host().display = is_sane ? QRect(0, 0, 1280, 720) : Rect();
    Host().touch = is_sane ? QRect(0, 0, 720, 1280) : Rect();
    Host().rotation = 90 * Below(4);
    Time().SetPointer(Pixel());
  }
  void LoadAnother() {
    test::SetNextKeymap(fuzz::MakeOddKeymap(random_()));
    OnLoadKeymapConfigAndInfo("odd.yaml", "com.example.game", QString(), Below(3));
    test::SetNextJoystickKeymap(fuzz::MakeOddKeymap(random_()));
    OnLoadJoystickConfigAndInfo("odd.yaml", 0);
  }

  void SendKey() {
    constexpr quint32 kUsed[] = {17, 30, 31, 32, 33, 57, 16, 18, 41, 1};
    const quint32 code = OneIn(8) ? static_cast<quint32>(Integer()) : kUsed[Below(std::size(kUsed))];
    QKeyEvent event(OneIn(2) ? QEvent::KeyPress : QEvent::KeyRelease, 0, Qt::NoModifier, code, code, 0);
    OnQtInputEvent(&event);
  }
  void SendMouse() {
    constexpr QEvent::Type kTypes[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove};
    constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const Qt::MouseButton button = kButtons[Below(std::size(kButtons))];
    const QEvent::Type type = kTypes[Below(std::size(kTypes))];
    const QPointF place = Place();
    QMouseEvent event(type, place, place, button, button, Qt::NoModifier);
    OnQtInputEvent(&event);
  }
  void SendWheel() {
    const Qt::KeyboardModifiers modifiers = OneIn(2) ? Qt::ControlModifier : Qt::NoModifier;
    const QPointF place = Place();
    QWheelEvent event(place, place, {}, QPoint(0, Integer()), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    OnQtInputEvent(&event);
  }
  void SendTouch() {
    constexpr QEvent::Type kTypes[] = {QEvent::TouchBegin, QEvent::TouchUpdate, QEvent::TouchEnd};
    const int id = Below(3);
    const qt::TouchPoint point = qt::MakeTouchPoint(id, Qt::TouchPointMoved, Place());
    QTouchEvent event = qt::MakeTouchEvent(kTypes[Below(std::size(kTypes))], Qt::NoModifier, {point});
    OnQtInputEvent(&event);
  }
  void SendStick() {
    const bool is_odd = OneIn(4);
    JoystickAxisEvent event(JoystickEvent::AxisTriggle, is_odd ? Number() : Below(3) - 1, is_odd ? Number() : 0.5,
                            Below(3), Integer());
    OnJoystickEvent(&event);
  }
  void Call() {
    int x = Integer();
    int y = Integer();
    switch (Below(8)) {
      case 0: return UpdateMousePosition(x, y);
      case 1: return ConvertWindowPositionToAndroid(x, y);
      case 2: return SetHandyStaringSensitivity(Number(), Number());
      case 3: return doBackAction(x);
      case 4: return OnResetInputStatus(OneIn(2), OneIn(2) ? 0 : x);
      case 5: return UpdateDisplayId(x);
      case 6: return StartRecordMacroInstruction("m");
      default: return StopRecordMacroInstruction("m");
    }
  }
  void Step() {
    switch (Below(16)) {
      case 0: return ChangeAnswers();
      case 1: return Call();
      case 2:
      case 3: return SendWheel();
      case 4: return SendTouch();
      case 5: return SendStick();
      case 6:
      case 7: return OnWindowsWmRelativeInputEvent(Integer(), Integer());
      case 8:
      case 9:
      case 10: return SendMouse();
      case 11:
      case 12: return Wait(Below(40));
      default: return SendKey();
    }
  }

  std::mt19937 random_;
};

// Fields are whole numbers or decimals; no line says "nan", "inf" or nothing at all.
TEST_P(AbsurdHost, GetsLinesOfNumbers) {
  const QRegularExpression line(R"(^\d+ms (-?\d+:[A-Z_]+(:-?\d+(\.\d+)?(e[+-]\d+)?)*|text TEXT(_CONTROL)?:.*)$)");
  int lines = 0;
  for (int keymap = 0; keymap < 20; ++keymap) {
    LoadAnother();
    for (int i = 0; i < 400; ++i) Step();
    for (const QString& said : TakeWire()) {
      ASSERT_TRUE(line.match(said).hasMatch()) << said.toStdString();
      ++lines;
    }
  }
  EXPECT_GT(lines, 1000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, AbsurdHost, testing::Range(1U, 9U));

}  // namespace
}  // namespace taviinputmanager
