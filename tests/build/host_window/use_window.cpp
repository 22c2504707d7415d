// Uses the example host with a window like a person, and prints its actions between the lines that the host prints.
#include <cstdio>

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "examples/host_window/guest_view.h"
#include "keymap/scan_codes.h"
#include "qt/touch_events.h"
#include "tests/support/keyboard_105.h"

namespace {

constexpr int kF = 33;
constexpr int kGrave = 41;
constexpr int kH = 35;
constexpr int kNumpadEnter = 96;

void Say(const char* what) {
  std::printf("# %s\n", what);
  std::fflush(stdout);
}

quint32 NativeCode(int linux_code) { return static_cast<quint32>(linux_code + tavikeymapmanager::kX11KeyOffset); }

void Key(GuestView* view, QEvent::Type type, int linux_code, int key = Qt::Key_unknown, const QString& text = {}) {
  QKeyEvent event(type, key, Qt::NoModifier, NativeCode(linux_code), 0, 0, text);
  QCoreApplication::sendEvent(view, &event);
}

void Click(GuestView* view, int linux_code, int key = Qt::Key_unknown, const QString& text = {}) {
  Key(view, QEvent::KeyPress, linux_code, key, text);
  Key(view, QEvent::KeyRelease, linux_code, key, text);
}

void Mouse(GuestView* view, QEvent::Type type, const QPoint& place, Qt::MouseButton button = Qt::LeftButton) {
  const bool is_up = type == QEvent::MouseButtonRelease || button == Qt::NoButton;
  QMouseEvent event(type, place, view->mapToGlobal(place), button, is_up ? Qt::NoButton : button, Qt::NoModifier);
  QCoreApplication::sendEvent(view, &event);
}

void Tap(GuestView* view, const QPoint& place) {
  Mouse(view, QEvent::MouseButtonPress, place);
  Mouse(view, QEvent::MouseButtonRelease, place);
}

qt::TouchPoint Finger(int id, Qt::TouchPointState state, const QPoint& place) {
  return qt::MakeTouchPoint(id, state, place);
}

void Touch(GuestView* view, QEvent::Type type, const QList<qt::TouchPoint>& fingers) {
  QTouchEvent event = qt::MakeTouchEvent(type, Qt::NoModifier, fingers);
  QCoreApplication::sendEvent(view, &event);
}

void Wheel(GuestView* view, const QPoint& turn) {
  QWheelEvent event({320, 180}, view->mapToGlobal(QPoint(320, 180)), {}, turn, Qt::NoButton, Qt::NoModifier,
                    Qt::ScrollUpdate, false);
  QCoreApplication::sendEvent(view, &event);
}

// The installed table, next to that of keyboard makers.
void CompareScanCodes() {
  for (const tavi::KeyboardKey& key : tavi::kKeyboard105) {
    const int got = tavikeymapmanager::ScanCodeOfLinuxKey(key.linux_code);
    if (got != key.scancode) std::printf("%s has scan code %d, not %d\n", key.name, key.scancode, got);
  }
}

void UseView(GuestView* view) {
  Say("keys");
  Click(view, kF);
  Click(view, kH);
  Click(view, kNumpadEnter);
  Say("a finger, before and after the window grows");
  Tap(view, {320, 180});
  view->resize(1280, 720);
  Tap(view, {320, 180});
  Say("of two fingers one goes up while the other rests, and then the touch is taken away");
  Touch(view, QEvent::TouchBegin, {Finger(1, Qt::TouchPointPressed, {320, 180})});
  Touch(view, QEvent::TouchUpdate,
        {Finger(1, Qt::TouchPointStationary, {320, 180}), Finger(2, Qt::TouchPointPressed, {640, 360})});
  Touch(view, QEvent::TouchUpdate,
        {Finger(1, Qt::TouchPointStationary, {320, 180}), Finger(2, Qt::TouchPointReleased, {640, 360})});
  Touch(view, QEvent::TouchCancel, {});
  Say("half a notch, sideways, and the other half");
  Wheel(view, {0, 60});
  Wheel(view, {120, 0});
  Wheel(view, {0, 60});
  Say("everything passes through, and no longer");
  Click(view, 88, Qt::Key_F12);
  Click(view, kF);
  Click(view, 88, Qt::Key_F12);
  Click(view, kF);
  Say("a text field");
  Click(view, 87, Qt::Key_F11);
  Click(view, kF, Qt::Key_F, "f");
  QInputMethodEvent commit;
  commit.setCommitString("\u00e9");
  QCoreApplication::sendEvent(view, &commit);
  Click(view, 87, Qt::Key_F11);
  Say("the mouse turns the view");
  Click(view, kGrave);
  QCoreApplication::processEvents();
  Mouse(view, QEvent::MouseMove, view->rect().center() + QPoint(10, 0), Qt::NoButton);
  Mouse(view, QEvent::MouseMove, view->rect().center() + QPoint(10, 0), Qt::NoButton);
  Say("the focus goes while a key and a finger are held");
  Key(view, QEvent::KeyPress, kF);
  Touch(view, QEvent::TouchBegin, {Finger(1, Qt::TouchPointPressed, {320, 180})});
  QFocusEvent focus(QEvent::FocusOut);
  QCoreApplication::sendEvent(view, &focus);
  Say("closed");
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  CompareScanCodes();
  GuestView view;
  view.resize(640, 360);
  view.show();
  view.activateWindow();
  QApplication::processEvents();
  Say("start");
  view.Start(QApplication::arguments().value(1));
  UseView(&view);
  return 0;
}
