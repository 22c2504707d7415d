// The window on the platform "offscreen": events are sent to its view as a window system would, and its model of the
// guest shows the result.
#ifndef TESTS_HOST_WINDOW_WINDOW_FIXTURE_H_
#define TESTS_HOST_WINDOW_WINDOW_FIXTURE_H_

#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>

#include "host/session/live_host.h"
#include "host/simulation/platform_events.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "host/window/main_window.h"
#include "host/window/view/guest_display.h"
#include "host/window/view/guest_view.h"
#include "tests/support/application_object.h"
#include "tests/support/system/native_key.h"

namespace tavi {

constexpr int kSpace = 57;  // key codes of Linux
constexpr int kW = 17;
constexpr int kA = 30;

class WindowFixture : public testing::Test {
 protected:
  WindowFixture() : clock_(InstallClock()) {
    window_ = std::make_unique<MainWindow>();
    window_->Display()->SetSize(QSize(1280, 720));
    window_->show();
    clock_->Settle();
  }

  void Load(const char* items, const char* settings = "") {
    window_->LoadKeymap(Write("keymap.yaml", items, settings));
  }
  void LoadJoystick(const char* items) { window_->LoadJoystickKeymap(Write("joystick.yaml", items)); }
  // Writes a keymap and returns its path.
  QString Write(const char* name, const char* items, const char* settings = "") {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("format: 1\n") + settings + "\nitems: [" + items + "]\n");
    return file.fileName();
  }

  void Send(QEvent* event) { QCoreApplication::sendEvent(View(), event); }
  void Key(QEvent::Type type, int linux_code, const QString& text = {}, bool repeat = false) {
    QKeyEvent event = NativeKeyEvent(type, 0, Qt::NoModifier, linux_code, text, repeat);
    Send(&event);
  }
  void Press(int linux_code) { Key(QEvent::KeyPress, linux_code); }
  void Release(int linux_code) { Key(QEvent::KeyRelease, linux_code); }

  // A position in the view, from fractions of its size.
  QPointF At(double x, double y) const { return {View()->width() * x, View()->height() * y}; }
  void Mouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons) {
    clock_->Advance(5);  // of two moves within 2 ms the second is ignored
    QMouseEvent event(type, place, place, View()->mapToGlobal(place.toPoint()), button, buttons, Qt::NoModifier);
    Send(&event);
  }

  // Calls `use` with the dialog that opens next, once it is active and the events posted so far are delivered.
  void UseDialog(const std::function<void(QWidget* dialog)>& use) {
    QTimer::singleShot(1, Window(), [use] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      use(dialog);
    });
  }
  // Enters a name in the file dialog that opens next, and accepts it.
  void EnterName(const QString& name) {
    UseDialog([name](QWidget* dialog) {
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
      QMetaObject::invokeMethod(dialog, "accept");
    });
  }

  MainWindow* Window() const { return window_.get(); }
  GuestView* View() const { return window_->View(); }
  const GuestState& Guest() const { return View()->Model().state(); }
  QList<int> Slots() const { return Guest().contacts.keys(); }
  // The only finger.
  QPoint Finger() const { return Guest().contacts.size() == 1 ? Guest().contacts.first().point : QPoint(-1, -1); }

  const PlatformEvents events_;
  VirtualEventDispatcher* clock_;  // owned by the application
  QTemporaryDir folder_;

 private:
  VirtualEventDispatcher* InstallClock() const {
    auto* clock = new VirtualEventDispatcher;
    events_.DeliverBy(clock);
    QCoreApplication::setEventDispatcher(clock);
    return clock;
  }

  ApplicationObject<QApplication> application_;

 protected:
  std::unique_ptr<MainWindow> window_;
};

// Within two pixels of the guest: one pixel of the view is more than one of them.
inline void ExpectNear(const QPoint& point, int x, int y) {
  EXPECT_NEAR(point.x(), x, 2);
  EXPECT_NEAR(point.y(), y, 2);
}

}  // namespace tavi

#endif  // TESTS_HOST_WINDOW_WINDOW_FIXTURE_H_
