#include "host/window/pointer/pointer_capture.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

#include <QApplication>
#include <QCursor>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QWidget>

#include "host/simulation/platform_events.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/support/application_object.h"

namespace tavi {
namespace {

constexpr int kRetryMs = 100;

// A lock with prescribed results.
struct FakeLock : PointerLock {
  // Outlives the lock.
  struct State {
    Outcome outcome;
    int tries = 0;
    bool is_held = false;
    WaySink sink;
  };
  explicit FakeLock(State* state) : state_(state) {}

  Outcome Hold(QWidget* /*view*/, WaySink sink) override {
    ++state_->tries;
    state_->is_held = state_->outcome.result == Result::kHeld;
    state_->sink = std::move(sink);
    return state_->outcome;
  }
  void Release() override { state_->is_held = false; }

  State* state_;
};

// A view whose middle is at 150, 100 on the screen, and which has the focus.
class PointerCaptureTest : public testing::Test {
 protected:
  PointerCaptureTest() : clock_(InstallClock()), view_(std::make_unique<QWidget>()) {
    view_->setGeometry(100, 50, 101, 101);
    view_->setMouseTracking(true);
    view_->show();
    view_->activateWindow();
    view_->setFocus();
    clock_->Settle();
    QCursor::setPos(10, 20);
  }

  // A capture for which the window system's result is `state_`.
  PointerCapture* Capture() {
    if (!capture_) {
      capture_ = std::make_unique<PointerCapture>(view_.get(), std::make_unique<FakeLock>(&state_));
      QObject::connect(capture_.get(), &PointerCapture::Moved, [this](int dx, int dy) { moves_ += QPoint(dx, dy); });
    }
    return capture_.get();
  }
  void Answer(PointerLock::Result result, const char* reason = "") { state_.outcome = {result, QLatin1String(reason)}; }

 private:
  VirtualEventDispatcher* InstallClock() const {
    auto* clock = new VirtualEventDispatcher;
    events_.DeliverBy(clock);
    QCoreApplication::setEventDispatcher(clock);
    return clock;
  }

 protected:
  const PlatformEvents events_;
  VirtualEventDispatcher* clock_;  // owned by the application

 private:
  ApplicationObject<QApplication> application_;

 protected:
  std::unique_ptr<QWidget> view_;
  FakeLock::State state_;
  std::unique_ptr<PointerCapture> capture_;
  QVector<QPoint> moves_;
};

TEST_F(PointerCaptureTest, ThePointerWaitsInTheMiddleAndComesBack) {
  PointerCapture capture(view_.get());
  capture.SetWanted(true);
  EXPECT_EQ(QCursor::pos(), QPoint(150, 100));
  EXPECT_EQ(view_->cursor().shape(), Qt::BlankCursor);

  capture.SetWanted(false);
  EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
  EXPECT_EQ(view_->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PointerCaptureTest, TheEndOfTheCaptureIsTheEndOfItsOwner) {
  {
    PointerCapture capture(view_.get());
    capture.SetWanted(true);
    EXPECT_EQ(QCursor::pos(), QPoint(150, 100));
  }
  EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
}

// Without a window system, each move of the view starts at the previous one.
TEST_F(PointerCaptureTest, WithoutAMouseMovesOfTheViewAreWays) {
  PointerCapture capture(view_.get());
  QObject::connect(&capture, &PointerCapture::Moved, [this](int dx, int dy) { moves_ += QPoint(dx, dy); });
  capture.SetWanted(true);
  for (const QPoint& place : {QPoint(50, 50), QPoint(55, 47), QPoint(58, 47), QPoint(50, 50)}) {
    QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view_.get(), &move);
  }
  EXPECT_EQ(moves_, (QVector<QPoint>{{5, -3}, {3, 0}, {-8, 3}}));
}

// 0.75 + 0.75 = 1.5 makes 1 and leaves 0.5; -0.5 and 0.25 leave 0.25; another 0.75 make 1. In the other direction -2.5
// makes -2.
TEST_F(PointerCaptureTest, PartsOfACountAreKept) {
  Capture()->SetWanted(true);
  for (const QPointF& way : {QPointF(0.75, 0), QPointF(0.75, 0), QPointF(-0.5, 0), QPointF(0.25, 0), QPointF(0.75, 0),
                             QPointF(0, -2.5), QPointF(0, -0.5)}) {
    state_.sink(way);
  }
  EXPECT_EQ(moves_, (QVector<QPoint>{{1, 0}, {1, 0}, {0, -2}, {0, -1}}));
}

TEST_F(PointerCaptureTest, PartsOfACountAreNotKeptForTheNextTime) {
  Capture()->SetWanted(true);
  state_.sink({0.75, 0});
  Capture()->SetWanted(false);
  Capture()->SetWanted(true);
  state_.sink({0.75, 0});
  EXPECT_EQ(moves_, QVector<QPoint>());
}

TEST_F(PointerCaptureTest, OnlyAViewWithTheFocusHoldsIt) {
  view_->clearFocus();
  Capture()->SetWanted(true);
  EXPECT_FALSE(state_.is_held);
  view_->setFocus();
  EXPECT_TRUE(state_.is_held);
  view_->clearFocus();
  EXPECT_FALSE(state_.is_held);
  EXPECT_EQ(view_->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PointerCaptureTest, AHiddenViewGivesItBack) {
  Capture()->SetWanted(true);
  view_->hide();
  EXPECT_FALSE(state_.is_held);
  EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
}

// Reported from the second refusal on, and retried every 100 ms.
TEST_F(PointerCaptureTest, APointerThatIsTakenIsTriedAgain) {
  Answer(PointerLock::Result::kBusy, "taken");
  Capture()->SetWanted(true);
  EXPECT_EQ(Capture()->Problem(), QString());
  clock_->Advance(kRetryMs - 1);
  EXPECT_EQ(state_.tries, 1);
  clock_->Advance(1);
  EXPECT_EQ(state_.tries, 2);
  EXPECT_EQ(Capture()->Problem(), "taken");
  EXPECT_FALSE(Capture()->IsHeld());
  EXPECT_EQ(view_->cursor().shape(), Qt::ArrowCursor);

  Answer(PointerLock::Result::kHeld);
  clock_->Advance(kRetryMs);
  EXPECT_TRUE(Capture()->IsHeld());
  EXPECT_EQ(Capture()->Problem(), QString());
  clock_->Advance(10 * kRetryMs);
  EXPECT_EQ(state_.tries, 3);
}

TEST_F(PointerCaptureTest, TriesEndWithTheWish) {
  Answer(PointerLock::Result::kBusy, "taken");
  Capture()->SetWanted(true);
  clock_->Advance(kRetryMs);
  Capture()->SetWanted(false);
  EXPECT_EQ(Capture()->Problem(), QString());
  clock_->Advance(10 * kRetryMs);
  EXPECT_EQ(state_.tries, 2);
}

TEST_F(PointerCaptureTest, WhatIsImpossibleIsToldAndNotTriedAgain) {
  Answer(PointerLock::Result::kImpossible, "never");
  Capture()->SetWanted(true);
  EXPECT_EQ(Capture()->Problem(), "never");
  EXPECT_FALSE(Capture()->IsHeld());
  clock_->Advance(10 * kRetryMs);
  EXPECT_EQ(state_.tries, 1);
  EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
}

}  // namespace
}  // namespace tavi
