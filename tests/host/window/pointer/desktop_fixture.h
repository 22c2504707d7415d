// The window on a real X server, in front of another program, and a simulated hand on mouse and keyboard. Time is real.
#ifndef TESTS_HOST_WINDOW_POINTER_DESKTOP_FIXTURE_H_
#define TESTS_HOST_WINDOW_POINTER_DESKTOP_FIXTURE_H_

#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QWindow>

#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/window/main_window.h"
#include "host/window/view/guest_view.h"
#include "taviinputmanager/types.h"
#include "tests/host/window/pointer/x_server.h"

namespace tavi {

constexpr int kGrave = 41;  // key codes of Linux
constexpr char kViewControl[] = "{type: Staring, key: Grave, point: [0.6, 0.4]}";
constexpr QPoint kCorner(200, 100);  // of the window, on the screen

class DesktopFixture : public testing::Test {
 protected:
  static constexpr int kPatienceMs = 20000;  // a machine may be busy

  void SetUp() override {
    if (server_.Display().isEmpty()) GTEST_SKIP() << "Xvfb is not installed (tools/install-dependencies.sh test)";
    application_ = std::make_unique<QApplication>(argument_count_, arguments_);
    other_ = std::make_unique<OtherProgram>();
    hand_ = std::make_unique<Hand>();
    QObject::connect(InputPort::GetInstance(), &InputPort::Began, application_.get(),
                     [this](const HostEvent& event) { Note(event); });
    window_ = std::make_unique<MainWindow>();
    window_->setGeometry(QRect(kCorner, QSize(1200, 700)));
    window_->show();
    ASSERT_TRUE(WaitFor([this] { return window_->isVisible() && window_->windowHandle()->isExposed(); }));
    Focus();
  }
  void TearDown() override {
    window_.reset();
    other_.reset();
    hand_.reset();
    application_.reset();
  }

  // Runs the application until the condition holds.
  static bool WaitFor(const std::function<bool()>& is_so) {
    QElapsedTimer waiting;
    waiting.start();
    while (!is_so() && waiting.elapsed() < kPatienceMs) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return is_so();
  }

  void Focus() {
    hand_->Focus(static_cast<xcb_window_t>(window_->winId()));
    ASSERT_TRUE(WaitFor([this] { return View()->hasFocus(); }));
  }
  void Load(const char* items) {
    QFile file(Keymap());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("format: 1\nitems: [") + items + "]\n");
    file.close();
    window_->LoadKeymap(Keymap());
  }
  QString Keymap() const { return folder_.filePath(QStringLiteral("keymap.yaml")); }

  static bool IsStaring() {
    return LiveHost::GetInstance()->InputStatus() == static_cast<int>(taviinputmanager::InputStatus::Staring);
  }
  // By its key.
  void BeginViewControl() {
    hand_->ClickKey(kGrave);
    ASSERT_TRUE(WaitFor(IsStaring));
    ASSERT_TRUE(WaitFor([this] { return !hand_->SeesPointer(); }));
  }

  GuestView* View() const { return window_->View(); }
  // Of the screen.
  QRect Place() const { return {View()->mapToGlobal(QPoint()), View()->size()}; }
  static QPoint NearCorner() { return kCorner + QPoint(20, 250); }

  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<OtherProgram> other_;
  std::unique_ptr<Hand> hand_;
  QPoint way_;       // counts that the library received
  int presses_ = 0;  // of mouse buttons
  int turns_ = 0;    // of the wheel
  int key_releases_ = 0;

 private:
  void Note(const HostEvent& event) {
    if (event.kind == HostEvent::Kind::kTurn) ++turns_;
    if (event.text == QLatin1String("release")) ++key_releases_;
    if (event.kind == HostEvent::Kind::kPress && event.text.startsWith(QLatin1String("press at"))) ++presses_;
    if (!event.text.startsWith(QLatin1String("move by "))) return;
    const QStringList counts = event.text.mid(8).split(QStringLiteral(", "));
    way_ += QPoint(counts[0].toInt(), counts[1].toInt());
  }

  XServer server_;
  QTemporaryDir folder_;
  int argument_count_ = 0;
  char* arguments_[1] = {nullptr};
  std::unique_ptr<QApplication> application_;
};

}  // namespace tavi

#endif  // TESTS_HOST_WINDOW_POINTER_DESKTOP_FIXTURE_H_
