// View control with a mouse, on a real X server.
#include <atomic>
#include <chrono>
#include <thread>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/pointer/desktop_fixture.h"

namespace tavi {
namespace {

using std::chrono::steady_clock;

constexpr int kLeft = 1;  // buttons of X11
constexpr int kMiddle = 2;
constexpr int kRight = 3;
constexpr QPoint kWay(8, -3);  // of one move

// The actions of a hand on its own thread.
struct Work {
  int moves = 0;
  int clicks = 0;
  int moves_outside = 0;  // the number of moves after which the pointer was outside the view
};

class ViewControl : public DesktopFixture {
 protected:
  // Moves steadily for a while, with occasional clicks, while the application runs.
  Work Turn(int moves_a_second, int seconds) {
    Work work;
    std::atomic<bool> is_done = false;
    std::thread thread([&, place = Place()] {
      Hand hand;
      const auto start = steady_clock::now();
      for (; work.moves < moves_a_second * seconds; ++work.moves) {
        std::this_thread::sleep_until(start + std::chrono::microseconds(1'000'000LL * work.moves / moves_a_second));
        hand.MoveBy(kWay.x(), kWay.y());
        if (!place.contains(hand.Pointer())) ++work.moves_outside;
        if (work.moves % 50 != 0) continue;
        hand.Click(work.clicks++ % 2 == 0 ? kLeft : kRight);
      }
      is_done = true;
    });
    WaitFor([&] { return is_done.load(); });
    thread.join();
    return work;
  }
};

// ---- What the mouse counts is what the library gets

class Pace : public ViewControl, public testing::WithParamInterface<int> {};

// Set TAVI_TEST_SECONDS=10 for a long run by hand.
TEST_P(Pace, EveryCountArrivesAndNothingGetsOut) {
  Load(kViewControl);
  BeginViewControl();
  const Work work = Turn(GetParam(), qMax(1, qEnvironmentVariableIntValue("TAVI_TEST_SECONDS")));
  EXPECT_TRUE(WaitFor([&] { return way_ == kWay * work.moves && presses_ == work.clicks; }));
  EXPECT_EQ(way_, kWay * work.moves);
  EXPECT_EQ(presses_, work.clicks);
  EXPECT_EQ(work.moves_outside, 0);
  EXPECT_EQ(other_->Clicks(), 0);
}

INSTANTIATE_TEST_SUITE_P(MovesASecond, Pace, testing::Values(300, 1000));

TEST_F(ViewControl, FlicksCountWhole) {
  Load(kViewControl);
  BeginViewControl();
  for (const QPoint& flick : {QPoint(2000, 0), QPoint(-2000, 0), QPoint(0, 2000), QPoint(2000, -2000)}) {
    way_ = QPoint();
    hand_->MoveBy(flick.x(), flick.y());
    EXPECT_TRUE(Place().contains(hand_->Pointer()));
    hand_->Click(kLeft);
    EXPECT_TRUE(WaitFor([&] { return way_ == flick; })) << way_.x() << ", " << way_.y();
  }
  EXPECT_TRUE(WaitFor([&] { return presses_ == 4; }));
  EXPECT_EQ(other_->Clicks(), 0);
}

TEST_F(ViewControl, TheWheelTurns) {
  Load(kViewControl);
  BeginViewControl();
  for (const int notch : {4, 5, 5}) hand_->Click(notch);
  EXPECT_TRUE(WaitFor([&] { return turns_ == 3; })) << turns_;
  EXPECT_EQ(presses_, 0);
}

// The pointer is held while the button is down, and released likewise.
TEST_F(ViewControl, AButtonSwitches) {
  Load("{type: Staring, key: Mouse Middle, point: [0.6, 0.4]}");
  hand_->MoveTo(NearCorner());
  hand_->Press(kMiddle);
  ASSERT_TRUE(WaitFor([this] { return View()->Capture().IsHeld(); }));
  hand_->MoveBy(9, 0);
  hand_->Release(kMiddle);
  EXPECT_TRUE(WaitFor([this] { return way_ == QPoint(9, 0) && QApplication::mouseButtons() == Qt::NoButton; }));
  hand_->Click(kMiddle);
  EXPECT_TRUE(WaitFor([this] { return hand_->Pointer() == NearCorner(); }));
  EXPECT_TRUE(WaitFor([] { return QApplication::mouseButtons() == Qt::NoButton; }));
  EXPECT_EQ(other_->Clicks(), 0);
}

TEST_F(ViewControl, AWindowThatMovesTakesThePointerAlong) {
  Load(kViewControl);
  BeginViewControl();
  window_->move(kCorner + QPoint(150, 120));
  hand_->MoveBy(5, 0);
  EXPECT_TRUE(WaitFor([&] { return way_ == QPoint(5, 0); }));
  EXPECT_TRUE(WaitFor([&] { return Place().contains(hand_->Pointer()); }));
}

TEST_F(ViewControl, AViewThatIsResizedKeepsThePointerInItsMiddle) {
  Load(kViewControl);
  BeginViewControl();
  window_->resize(900, 900);
  WaitFor([&] { return View()->width() < 900; });
  hand_->MoveBy(5, 0);
  EXPECT_TRUE(WaitFor([&] { return way_ == QPoint(5, 0); }));
  EXPECT_TRUE(WaitFor([&] { return (hand_->Pointer() - Place().center()).manhattanLength() <= 2; }));
}

// ---- The pointer comes back

// Where it was when view control began, visible, and other programs get it.
class GivenBack : public ViewControl {
 protected:
  void SetUp() override {
    ViewControl::SetUp();
    if (IsSkipped()) return;
    Load(kViewControl);
    hand_->MoveTo(NearCorner());
    BeginViewControl();
    hand_->MoveBy(100, 50);
    ASSERT_TRUE(WaitFor([&] { return way_ == QPoint(100, 50); }));
  }

  void ExpectBack() {
    EXPECT_TRUE(WaitFor([this] { return hand_->Pointer() == NearCorner(); }))
        << hand_->Pointer().x() << ", " << hand_->Pointer().y();
    EXPECT_TRUE(WaitFor([this] { return hand_->SeesPointer(); }));
    EXPECT_TRUE(other_->GrabPointer());
    other_->UngrabPointer();
    way_ = QPoint();
    hand_->MoveTo(QPoint(50, 50));
    hand_->Click(kLeft);
    EXPECT_EQ(other_->Clicks(), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(way_, QPoint());
  }
};

TEST_F(GivenBack, ByItsKey) {
  hand_->ClickKey(kGrave);
  ExpectBack();
}

TEST_F(GivenBack, ByThePanicKey) {
  for (const int key : {29, 56, 14}) hand_->PressKey(key);  // Ctrl+Alt+Backspace
  ExpectBack();
}

TEST_F(GivenBack, ByThePause) {
  hand_->ClickKey(88);  // F12
  ExpectBack();
}

TEST_F(GivenBack, WithTheFocus) {
  hand_->Focus(other_->Window());
  ExpectBack();
  EXPECT_FALSE(IsStaring());
}

TEST_F(GivenBack, ByAKeymapThatHasNoViewControl) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  ExpectBack();
}

TEST_F(GivenBack, ByAKeymapThatIsDeleted) {
  ASSERT_TRUE(QFile::remove(Keymap()));
  ExpectBack();
}

TEST_F(GivenBack, ByAWindowThatIsClosed) {
  window_->close();
  ExpectBack();
}

TEST_F(GivenBack, ByTheEndOfTheWindow) {
  window_.reset();
  ExpectBack();
}

// Events that a view gets, whatever it does with them.
class KeyReleases : public QObject {
 public:
  explicit KeyReleases(QObject* view) { view->installEventFilter(this); }
  int Count() const { return count_; }

 private:
  bool eventFilter(QObject* /*view*/, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease) ++count_;
    return false;
  }

  int count_ = 0;
};

// A release waits for a moment, because it may belong to a key repeat.
TEST_F(ViewControl, AReleaseThatWaitsAtTheEndOfTheWindow) {
  Load(kViewControl);
  hand_->PressKey(kGrave);
  ASSERT_TRUE(WaitFor(IsStaring));
  KeyReleases arrived(View());
  hand_->ReleaseKey(kGrave);
  ASSERT_TRUE(WaitFor([&] { return arrived.Count() > 0; }));
  window_.reset();
  EXPECT_EQ(key_releases_, 1);
}

// ---- Someone else holds it

class Taken : public ViewControl {
 protected:
  void SetUp() override {
    ViewControl::SetUp();
    if (IsSkipped()) return;
    Load(kViewControl);
    ASSERT_TRUE(other_->GrabPointer());
    hand_->ClickKey(kGrave);
    ASSERT_TRUE(WaitFor([this] { return !View()->Capture().Problem().isEmpty(); }));
  }
};

TEST_F(Taken, ItIsToldAndWaitedFor) {
  const PointerCapture& capture = View()->Capture();
  EXPECT_EQ(capture.Problem(), "Another program holds the mouse. View control begins when it releases it.");
  EXPECT_TRUE(hand_->SeesPointer());
  EXPECT_FALSE(capture.IsHeld());
  hand_->MoveBy(30, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(way_, QPoint());

  other_->UngrabPointer();
  ASSERT_TRUE(WaitFor([&] { return capture.IsHeld(); }));
  EXPECT_EQ(capture.Problem(), QString());
  EXPECT_FALSE(hand_->SeesPointer());
  hand_->MoveBy(30, 0);
  EXPECT_TRUE(WaitFor([&] { return way_ == QPoint(30, 0); }));
}

TEST_F(Taken, AWaitEndsWithTheWish) {
  hand_->ClickKey(kGrave);
  EXPECT_TRUE(WaitFor([this] { return View()->Capture().Problem().isEmpty(); }));
  other_->UngrabPointer();
  EXPECT_TRUE(other_->GrabPointer());
}

// A macro may hold all input while another window is in front: afterwards the view keeps turning.
TEST_F(ViewControl, AWindowThatComesBackTakesItAgain) {
  Load("{type: Staring, key: Grave, point: [0.6, 0.4]}, {type: Macro, key: E, press_commands: ['hold_switch']}");
  hand_->ClickKey(18);  // E
  ASSERT_TRUE(WaitFor([] { return taviinputmanager::isInputHoldWhenWindowDeactivate(); }));
  BeginViewControl();
  hand_->Focus(other_->Window());
  ASSERT_TRUE(WaitFor([this] { return hand_->SeesPointer(); }));
  Focus();
  EXPECT_TRUE(WaitFor([this] { return View()->Capture().IsHeld(); }));
  hand_->MoveBy(7, 0);
  EXPECT_TRUE(WaitFor([&] { return way_ == QPoint(7, 0); }));
}

}  // namespace
}  // namespace tavi
