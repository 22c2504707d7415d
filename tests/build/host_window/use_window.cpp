// Uses the example host with a window as a person would, and tells what it does between the lines that the host prints.
#include <cstdio>

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "examples/host_window/guest_view.h"
#include "examples/host_window/scan_codes.h"
#include "host/scan_codes.h"

namespace {

constexpr int kX11Offset = 8;
constexpr int kF = 33;
constexpr int kGrave = 41;
constexpr int kH = 35;
constexpr int kNumpadEnter = 96;

void Say(const char* what) {
  std::printf("# %s\n", what);
  std::fflush(stdout);
}

quint32 NativeCode(int linux_code) { return static_cast<quint32>(linux_code + kX11Offset); }

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

// Every key of Linux: the example's table beside that of the program.
void CompareScanCodes() {
  for (int code = 1; code <= 255; ++code) {
    const QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, NativeCode(code), 0, 0);
    const int expected = tavi::ScanCodeOfLinuxKey(code);
    const int got = static_cast<int>(WindowsScanCode(event));
    if (got != expected) std::printf("Linux key %d has scan code %d, not %d\n", code, expected, got);
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
  Say("the mouse steers the view");
  Click(view, kGrave);
  QCoreApplication::processEvents();
  Mouse(view, QEvent::MouseMove, view->rect().center() + QPoint(10, 0), Qt::NoButton);
  Mouse(view, QEvent::MouseMove, view->rect().center() + QPoint(10, 0), Qt::NoButton);
  Say("the focus goes while a key is held");
  Key(view, QEvent::KeyPress, kF);
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
