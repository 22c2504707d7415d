// Virtual time from the point of view of plain Qt objects: when timers fire, in which order, and what is delivered
// before them.
#include "host/simulation/virtual_event_dispatcher.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>
#include <QTimerEvent>

#include "tests/host/simulation/virtual_time_fixture.h"

namespace tavi {

namespace {

// Calls a function at each of its raw timer events.
class TimerProbe : public QObject {
 public:
  explicit TimerProbe(std::function<void(int)> on_timer) : on_timer_(std::move(on_timer)) {}

 protected:
  void timerEvent(QTimerEvent* event) override { on_timer_(event->timerId()); }

 private:
  std::function<void(int)> on_timer_;
};

using Clock = VirtualTimeFixture;
using Timers = VirtualTimeFixture;
using IdleTimers = VirtualTimeFixture;
using Delivery = VirtualTimeFixture;

TEST_F(Clock, StandsStillUnlessItIsMoved) {
  EXPECT_EQ(time_->NowMs(), 1577836800000);
  time_->Settle();
  QCoreApplication::processEvents();
  EXPECT_EQ(Now(), 0);
  time_->Advance(250);
  EXPECT_EQ(Now(), 250);
  time_->Advance(0);
  time_->Advance(-5);
  EXPECT_EQ(Now(), 250);
}

TEST(ClockStart, IsWhatTheCallerSays) { EXPECT_EQ(VirtualEventDispatcher(5000).NowMs(), 5000); }

TEST_F(Clock, IsFoundThroughTheInterface) {
  auto* found = qobject_cast<taviinputmanager::VirtualTime*>(QAbstractEventDispatcher::instance());
  ASSERT_TRUE(found);
  time_->SetPointer(QPoint(640, 360));
  EXPECT_EQ(found->Pointer(), QPoint(640, 360));
  found->Sleep(7);
  EXPECT_EQ(found->NowMs(), time_->NowMs());
  EXPECT_EQ(Now(), 7);
}

TEST_F(Timers, FireAtTheirDueTimeAndNotBefore) {
  const auto timer = Start("a", 8);
  time_->Advance(7);
  EXPECT_EQ(TakeLog(), "");
  time_->Advance(1);
  EXPECT_EQ(TakeLog(), "8ms a");
  time_->Advance(16);
  EXPECT_EQ(TakeLog(), "16ms a, 24ms a");
}

TEST_F(Timers, EndExactlyAtTheEndOfTheStep) {
  const auto timer = Start("a", 8);
  time_->Advance(10);
  EXPECT_EQ(Now(), 10);
  EXPECT_EQ(timer->remainingTime(), 6);
}

TEST_F(Timers, FireInOrderOfDueTime) {
  const auto slow = Start("slow", 30);
  const auto fast = Start("fast", 20);
  time_->Advance(40);
  EXPECT_EQ(TakeLog(), "20ms fast, 30ms slow, 40ms fast");
}

TEST_F(Timers, DueTogetherFireInOrderOfTheirStart) {
  const auto a = Start("a", 10);
  const auto b = Start("b", 10);
  time_->Advance(20);
  EXPECT_EQ(TakeLog(), "10ms a, 10ms b, 20ms a, 20ms b");
}

TEST_F(Timers, ATimeoutCountsAsAStart) {
  // At 20 ms the 10 ms timer was last started at 10 ms, the other one at 0 ms.
  const auto a = Start("a", 10);
  const auto b = Start("b", 20);
  time_->Advance(20);
  EXPECT_EQ(TakeLog(), "10ms a, 20ms b, 20ms a");
}

TEST_F(Timers, RestartingPutsATimerBehindItsEquals) {
  const auto a = Start("a", 10);
  const auto b = Start("b", 10);
  a->start(10);
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms b, 10ms a");
}

TEST_F(Timers, RestartingBeginsTheIntervalAnew) {
  const auto timer = Start("a", 10);
  time_->Advance(9);
  timer->start(5);
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "14ms a, 19ms a");
}

TEST_F(Timers, MayBeRestartedFromTheirOwnHandler) {
  // 16 ms first and 14 ms from then on: 16, 30, 44.
  QTimer* self = nullptr;
  const auto timer = Start("a", 16, [&self] { self->start(14); });
  self = timer.get();
  time_->Advance(44);
  EXPECT_EQ(TakeLog(), "16ms a, 30ms a, 44ms a");
}

TEST_F(Timers, SingleShotsFireOnce) {
  const auto timer = Start("a", 50);
  timer->setSingleShot(true);
  QTimer::singleShot(20, application_.get(), [this] { Log("b"); });
  time_->Advance(200);
  EXPECT_EQ(TakeLog(), "20ms b, 50ms a");
  EXPECT_FALSE(timer->isActive());
}

TEST_F(Timers, AHandlerMayStopOneThatIsDueNow) {
  QTimer* other = nullptr;
  const auto a = Start("a", 10, [&other] { other->stop(); });
  const auto b = Start("b", 10);
  other = b.get();
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms a");
}

TEST_F(Timers, AHandlerMayDeleteItsOwnTimerAndOthers) {
  auto* b = Start("b", 10).release();
  QTimer* a = nullptr;
  a = Start("a", 5, [&a, b] {
        delete b;
        delete a;
      }).release();
  time_->Advance(50);
  EXPECT_EQ(TakeLog(), "5ms a");
}

TEST_F(Timers, AHandlerMayStartOneThatFallsDueOnTheWay) {
  std::unique_ptr<QTimer> late;
  const auto a = Start("a", 10, [this, &late] {
    if (!late) late = Start("late", 3);
  });
  time_->Advance(14);
  EXPECT_EQ(TakeLog(), "10ms a, 13ms late");
}

TEST_F(Timers, OfPlainObjectsServeToo) {
  TimerProbe probe([this](int) { Log("probe"); });
  const int first = probe.startTimer(10);
  const int second = probe.startTimer(15, Qt::PreciseTimer);
  EXPECT_EQ(time_->registeredTimers(&probe).size(), 2);
  EXPECT_EQ(time_->remainingTime(second), 15);
  time_->Advance(15);
  EXPECT_EQ(TakeLog(), "10ms probe, 15ms probe");
  probe.killTimer(first);
  EXPECT_EQ(time_->remainingTime(first), -1);
  time_->Advance(15);
  EXPECT_EQ(TakeLog(), "30ms probe");
  EXPECT_TRUE(time_->unregisterTimers(&probe));
  EXPECT_FALSE(time_->unregisterTimers(&probe));
  time_->Advance(15);
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(Timers, AfterALateTimeoutTheDueTimeMovesOnByTheInterval) {
  // Due at 10, delayed to 15: the next is due at 20, not at 25.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(10); });
  sleeper->setSingleShot(true);
  const auto timer = Start("a", 10);
  time_->Advance(20);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 15ms a, 20ms a");
}

TEST_F(Timers, OneWhoseNextDueTimeIsNowFiresAgainAtOnce) {
  // Due at 10, delayed to 20. The next due time, 20, is not in the past.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(15); });
  sleeper->setSingleShot(true);
  const auto timer = Start("a", 10);
  time_->Advance(30);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 20ms a, 20ms a, 30ms a");
}

TEST_F(Timers, MissedTimeoutsAreNotMadeUpFor) {
  // Due at 10, delayed to 36: 20 is in the past, so the next is one interval from 36.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(31); });
  sleeper->setSingleShot(true);
  const auto timer = Start("a", 10);
  time_->Advance(60);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 36ms a, 46ms a, 56ms a");
}

TEST_F(Timers, HeldUpOnesFireInOrderOfDueTime) {
  // At 8 ms the sleeper, started at 0 ms, comes before the 4 ms timer, started at 4 ms. The latter belongs to the same
  // pass and fires at 28 ms, next due at 12. The pass of 28 ms fires the 11 ms timer, due since 11, and the 4 ms timer
  // again; their next due times, 22 and 16, are in the past and become 39 and 32.
  const auto fast = Start("fast", 4);
  const auto sleeper = Start("sleeper", 8, [this] { time_->Sleep(20); });
  sleeper->setSingleShot(true);
  const auto middle = Start("middle", 11);
  time_->Advance(34);
  EXPECT_EQ(TakeLog(), "4ms fast, 8ms sleeper, 28ms fast, 28ms middle, 28ms fast, 32ms fast");
}

TEST_F(Timers, AStepThatASleepOverrunsLeavesTheRestToTheNext) {
  // The step ends at 10. Timers due by then fire, at 30; one due at 12 waits for the next step.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(25); });
  sleeper->setSingleShot(true);
  const auto in_time = Start("in time", 10);
  in_time->setSingleShot(true);
  const auto too_late = Start("too late", 12);
  too_late->setSingleShot(true);
  time_->Advance(10);
  EXPECT_EQ(Now(), 30);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 30ms in time");
  time_->Advance(1);
  EXPECT_EQ(TakeLog(), "30ms too late");
}

TEST_F(IdleTimers, FireOnceAPassAndAPassOfThemTakesOneMillisecond) {
  const auto idle = Start("idle", 0);
  time_->Advance(3);
  EXPECT_EQ(TakeLog(), "0ms idle, 1ms idle, 2ms idle");
  EXPECT_EQ(Now(), 3);
}

TEST_F(IdleTimers, ShareThePassOfOneMillisecond) {
  const auto a = Start("a", 0);
  const auto b = Start("b", 0);
  time_->Advance(2);
  EXPECT_EQ(TakeLog(), "0ms a, 0ms b, 1ms a, 1ms b");
}

TEST_F(IdleTimers, FireOnceMoreInAPassThatOthersMake) {
  // The idle timer is due since its last timeout. The pass at 2 ms, with the other timer, takes no time, so a pass with
  // only the idle timer follows at 2 ms; the one at 4 ms belongs to the next step.
  const auto idle = Start("idle", 0);
  const auto timer = Start("timer", 2);
  time_->Advance(4);
  EXPECT_EQ(TakeLog(), "0ms idle, 1ms idle, 2ms idle, 2ms timer, 2ms idle, 3ms idle, 4ms idle, 4ms timer");
}

TEST_F(IdleTimers, DoTheSameInTwoStepsAsInOne) {
  const auto idle = Start("idle", 0);
  const auto timer = Start("timer", 2);
  time_->Advance(2);
  time_->Advance(2);
  EXPECT_EQ(TakeLog(), "0ms idle, 1ms idle, 2ms idle, 2ms timer, 2ms idle, 3ms idle, 4ms idle, 4ms timer");
}

TEST_F(IdleTimers, StartedInAPassWaitForTheNext) {
  std::unique_ptr<QTimer> next;
  const auto timer = Start("timer", 5, [this, &next] {
    if (!next) next = Start("next", 0);
  });
  timer->setSingleShot(true);
  const auto also = Start("also", 5);
  time_->Advance(6);
  EXPECT_EQ(TakeLog(), "5ms timer, 5ms also, 5ms next");
}

TEST_F(IdleTimers, ThatStopThemselvesEndTheirCost) {
  QTimer* self = nullptr;
  int left = 3;
  const auto idle = Start("idle", 0, [&self, &left] {
    if (--left == 0) self->stop();
  });
  self = idle.get();
  const auto timer = Start("timer", 10);
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "0ms idle, 1ms idle, 2ms idle, 10ms timer");
}

TEST_F(Delivery, ComesBeforeEachTimerUntilNothingIsLeft) {
  // The first handler posts a call that posts another: both are delivered before the second timer of the same moment.
  const auto a = Start("a", 10, [this] {
    Post([this] {
      Log("posted");
      Post([this] { Log("posted again"); });
    });
  });
  const auto b = Start("b", 10);
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms a, 10ms posted, 10ms posted again, 10ms b");
}

TEST_F(Delivery, ComesBeforeTheFirstTimerAtThePresentTime) {
  const auto a = Start("a", 10);
  Post([this] { Log("posted"); });
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "0ms posted, 10ms a");
}

TEST_F(Delivery, ComesAfterTheLastTimerToo) {
  const auto a = Start("a", 10, [this] { Post([this] { Log("posted"); }); });
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms a, 10ms posted");
}

TEST_F(Delivery, OfAPostedCallMayStopTheNextTimer) {
  QTimer* other = nullptr;
  const auto a = Start("a", 10, [this, &other] { Post([&other] { other->stop(); }); });
  const auto b = Start("b", 10);
  other = b.get();
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms a");
}

TEST_F(Delivery, IncludesDeferredDeletes) {
  QPointer<QObject> from_outside = new QObject;
  from_outside->deleteLater();
  time_->Settle();
  EXPECT_TRUE(from_outside.isNull());

  // From a handler: deleted before the next timer of the same moment.
  QPointer<QObject> from_handler = new QObject;
  const auto a = Start("a", 10, [&from_handler] {
    if (from_handler) from_handler->deleteLater();
  });
  const auto b = Start("b", 10, [this, &from_handler] { Log(from_handler ? "still there" : "gone"); });
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms a, 10ms b, 10ms gone");
}

TEST_F(Delivery, OfDeletesLeavesTheOrderOfPostedCallsAlone) {
  // A call that was posted to an object before its deletion still reaches it, wherever it was posted from.
  auto* object = new QObject;
  Post([this, object] {
    QMetaObject::invokeMethod(
        object, [this] { Log("last call"); }, Qt::QueuedConnection);
    object->deleteLater();
    QObject::connect(object, &QObject::destroyed, [this] { Log("destroyed"); });
  });
  time_->Settle();
  EXPECT_EQ(TakeLog(), "0ms last call, 0ms destroyed");
}

TEST_F(Delivery, ByTheStepAloneTakesNoTime) {
  const auto idle = Start("idle", 0);
  Post([this] { Log("posted"); });
  time_->Settle();
  EXPECT_EQ(TakeLog(), "0ms posted");
}

}  // namespace

}  // namespace tavi
