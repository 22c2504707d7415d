// Virtual time, seen by plain Qt objects: when timers fire, in which order, and what is delivered before them.
#include "host/simulation/virtual_event_dispatcher.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPointer>
#include <QSemaphore>
#include <QThread>
#include <QTimer>
#include <QTimerEvent>
#include <QVariant>
#include <QWindow>

namespace tavi {

namespace {

int argument_count = 1;
char program_name[] = "virtual_event_dispatcher_test";
char* arguments[] = {program_name, nullptr};

// Calls a function at each of its raw timer events.
class TimerProbe : public QObject {
 public:
  explicit TimerProbe(std::function<void(int)> on_timer) : on_timer_(std::move(on_timer)) {}

 protected:
  void timerEvent(QTimerEvent* event) override { on_timer_(event->timerId()); }

 private:
  std::function<void(int)> on_timer_;
};

// What other threads post to, by name: a function object that crosses threads inside Qt looks like a race to
// ThreadSanitizer, which does not see Qt's own locks.
class Mailbox : public QObject {
  Q_OBJECT

 public:
  int taken() const { return taken_; }

 public Q_SLOTS:
  void Take() {
    ++taken_;
    Q_EMIT Taken();
  }

 Q_SIGNALS:
  void Taken();

 private:
  int taken_ = 0;
};

class VirtualEventDispatcherTest : public testing::Test {
 protected:
  VirtualEventDispatcherTest() : time_(new VirtualEventDispatcher) {
    QCoreApplication::setEventDispatcher(time_);
    application_ = std::make_unique<QCoreApplication>(argument_count, arguments);
  }

  // Milliseconds since the test began.
  qint64 Now() const { return time_->NowMs() - VirtualEventDispatcher::kDefaultStartMs; }
  void Log(const QString& what) { log_ += QStringLiteral("%1ms %2").arg(Now()).arg(what); }
  std::string TakeLog() { return std::exchange(log_, {}).join(QStringLiteral(", ")).toStdString(); }

  // A running timer that writes `name` at each timeout and then does `then`.
  std::unique_ptr<QTimer> Start(
      const QString& name, int interval_ms, std::function<void()> then = [] {}) {
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, [this, name, then = std::move(then)] {
      Log(name);
      then();
    });
    timer->start(interval_ms);
    return timer;
  }
  std::unique_ptr<QTimer> StartWorker(
      const QString& name, int interval_ms, std::function<void()> then = [] {}) {
    auto timer = Start(name, interval_ms, std::move(then));
    timer->setProperty(taviinputmanager::kWorkerTimerProperty, true);
    return timer;
  }
  void Post(std::function<void()> function) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(function), Qt::QueuedConnection);
  }

  VirtualEventDispatcher* time_;  // the application's
  std::unique_ptr<QCoreApplication> application_;
  QStringList log_;
};

using Clock = VirtualEventDispatcherTest;
using Timers = VirtualEventDispatcherTest;
using IdleTimers = VirtualEventDispatcherTest;
using Delivery = VirtualEventDispatcherTest;
using BlockingSleep = VirtualEventDispatcherTest;
using EventLoops = VirtualEventDispatcherTest;
using OtherThreads = VirtualEventDispatcherTest;

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
  // At 20 ms the 10 ms timer was last put in line at 10 ms, the other one at 0 ms.
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
  // Due at 10, held up to 15: the next is due at 20, not at 25.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(10); });
  sleeper->setSingleShot(true);
  const auto timer = Start("a", 10);
  time_->Advance(20);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 15ms a, 20ms a");
}

TEST_F(Timers, OneWhoseNextDueTimeIsNowFiresAgainAtOnce) {
  // Due at 10, held up to 20. The next due time, 20, is not past.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(15); });
  sleeper->setSingleShot(true);
  const auto timer = Start("a", 10);
  time_->Advance(30);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 20ms a, 20ms a, 30ms a");
}

TEST_F(Timers, MissedTimeoutsAreNotMadeUpFor) {
  // Due at 10, held up to 36: 20 is past, so that the next is one interval from 36.
  const auto sleeper = Start("sleeper", 5, [this] { time_->Sleep(31); });
  sleeper->setSingleShot(true);
  const auto timer = Start("a", 10);
  time_->Advance(60);
  EXPECT_EQ(TakeLog(), "5ms sleeper, 36ms a, 46ms a, 56ms a");
}

TEST_F(Timers, HeldUpOnesFireInOrderOfDueTime) {
  // At 8 ms the sleeper, in line since 0 ms, comes before the 4 ms timer, in line since 4 ms. That one is of the same
  // pass and fires at 28 ms, next due at 12. The pass of 28 ms fires the 11 ms timer, due since 11, and the 4 ms timer
  // again; their next due times, 22 and 16, are past and become 39 and 32.
  const auto fast = Start("fast", 4);
  const auto sleeper = Start("sleeper", 8, [this] { time_->Sleep(20); });
  sleeper->setSingleShot(true);
  const auto middle = Start("middle", 11);
  time_->Advance(34);
  EXPECT_EQ(TakeLog(), "4ms fast, 8ms sleeper, 28ms fast, 28ms middle, 28ms fast, 32ms fast");
}

TEST_F(Timers, AStepThatASleepOverrunsLeavesTheRestToTheNext) {
  // The step ends at 10. What was due by then fires, at 30; what fell due at 12 waits for the next step.
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
  // The idle timer is due since its last timeout. The pass at 2 ms, with the other timer, takes no time, so that one of
  // the idle timer alone follows at 2 ms; the one at 4 ms is the next step's.
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
  // The first handler posts a call that posts another: both come before the second timer of the same moment.
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

  // From a handler: gone before the next timer of the same moment.
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

TEST_F(BlockingSleep, FiresTheWorkersTimersOnly) {
  const auto worker = StartWorker("worker", 10);
  const auto main = Start("main", 10);
  time_->Sleep(25);
  EXPECT_EQ(TakeLog(), "10ms worker, 20ms worker");
  EXPECT_EQ(Now(), 25);
  // The other one was due at 10 and at 20; 20 is past at 25.
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "25ms main, 30ms worker, 35ms main");
}

TEST_F(BlockingSleep, FiresAWorkersTimerThatIsDueAtItsEnd) {
  const auto worker = StartWorker("worker", 25);
  time_->Sleep(24);
  EXPECT_EQ(TakeLog(), "");
  time_->Sleep(1);
  EXPECT_EQ(TakeLog(), "25ms worker");
}

TEST_F(BlockingSleep, DeliversNothingUntilTheSleeperReturns) {
  const auto worker = StartWorker("worker", 10, [this] { Post([this] { Log("from worker"); }); });
  QPointer<QObject> object = new QObject;
  Post([this, &object] {
    Post([this] { Log("posted"); });
    object->deleteLater();
    time_->Sleep(20);
    Log(object ? "woke up" : "deleted");
  });
  time_->Settle();
  EXPECT_EQ(TakeLog(), "10ms worker, 20ms worker, 20ms woke up, 20ms posted, 20ms from worker, 20ms from worker");
  EXPECT_TRUE(object.isNull());
}

TEST_F(BlockingSleep, FiresIdleWorkersOncePerMillisecond) {
  const auto worker = StartWorker("worker", 0);
  const auto main = Start("main", 0);
  time_->Sleep(2);
  EXPECT_EQ(TakeLog(), "0ms worker, 1ms worker");
  EXPECT_EQ(Now(), 2);
}

TEST_F(BlockingSleep, OfNothingFiresNothing) {
  const auto worker = StartWorker("worker", 0);
  time_->Sleep(0);
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Now(), 0);
}

TEST_F(BlockingSleep, InsideAWorkersHandlerLeavesThatTimerAlone) {
  // A timer does not fire inside its own handler. At 30 its due time was 20 and then, past, 40.
  const auto worker = StartWorker("worker", 10, [this] { time_->Sleep(20); });
  worker->setSingleShot(false);
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms worker");
  EXPECT_EQ(Now(), 30);
}

TEST_F(EventLoops, GoOnToTheNextTimerWhenNothingIsLeft) {
  QEventLoop loop;
  const auto other = Start("other", 40);
  QTimer::singleShot(100, &loop, &QEventLoop::quit);
  EXPECT_EQ(loop.exec(), 0);
  EXPECT_EQ(TakeLog(), "40ms other, 80ms other");
  EXPECT_EQ(Now(), 100);
}

TEST_F(EventLoops, MayRunInsideAStep) {
  const auto timer = Start("timer", 10, [this] {
    QEventLoop loop;
    QTimer::singleShot(5, &loop, &QEventLoop::quit);
    loop.exec();
    Log("loop left");
  });
  timer->setSingleShot(true);
  time_->Advance(20);
  EXPECT_EQ(TakeLog(), "10ms timer, 15ms loop left");
  EXPECT_EQ(Now(), 20);
}

TEST_F(EventLoops, DoNotFireATimerInsideItsOwnHandler) {
  const auto timer = Start("timer", 10, [this] {
    QEventLoop loop;
    QTimer::singleShot(25, &loop, &QEventLoop::quit);
    loop.exec();
    Log("loop left");
  });
  time_->Advance(10);
  EXPECT_EQ(TakeLog(), "10ms timer, 35ms loop left");
}

TEST_F(EventLoops, OfTheApplicationEndWithIt) {
  const auto timer = Start("timer", 30, [] { QCoreApplication::exit(3); });
  EXPECT_EQ(QCoreApplication::exec(), 3);
  EXPECT_EQ(TakeLog(), "30ms timer");
}

TEST_F(EventLoops, KeepAnObjectUntilTheHandlerThatGaveItUpReturns) {
  QPointer<QObject> object = new QObject;
  Post([this, &object] {
    object->deleteLater();
    QCoreApplication::processEvents();
    Log(object ? "kept" : "gone");
  });
  time_->Settle();
  EXPECT_EQ(TakeLog(), "0ms kept");
  EXPECT_TRUE(object.isNull());
}

TEST_F(EventLoops, TakeNoTimeWithoutWaiting) {
  const auto timer = Start("timer", 10);
  QCoreApplication::processEvents();
  EXPECT_EQ(Now(), 0);
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(EventLoops, DoNotSleepThroughAWakeUpThatCameBefore) {
  // With no timer and nothing posted, a wait would not end.
  time_->wakeUp();
  EXPECT_TRUE(time_->processEvents(QEventLoop::WaitForMoreEvents));
  time_->interrupt();
  EXPECT_TRUE(time_->processEvents(QEventLoop::WaitForMoreEvents));
}

TEST_F(OtherThreads, WakeALoopThatHasNothingToDo) {
  QEventLoop loop;
  Mailbox mailbox;
  std::thread other([&loop, &mailbox] {
    QMetaObject::invokeMethod(&mailbox, "Take", Qt::QueuedConnection);
    QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
  });
  loop.exec();
  other.join();
  EXPECT_EQ(mailbox.taken(), 1);
  EXPECT_EQ(Now(), 0);
}

TEST_F(OtherThreads, MayEndALoopDirectly) {
  // Often, since the end may come at any point of the loop's way to its rest.
  for (int i = 0; i < 200; ++i) {
    QEventLoop loop;
    QSemaphore entered;
    Post([&entered] { entered.release(); });
    std::thread other([&loop, &entered] {
      entered.acquire();
      loop.exit(4);
    });
    EXPECT_EQ(loop.exec(), 4);
    other.join();
  }
}

TEST_F(OtherThreads, LoseNoEventWhileTheClockIsDriven) {
  constexpr int kThreads = 4;
  constexpr int kPosts = 500;
  Mailbox mailbox;
  const auto timer = Start("tick", 1);
  std::vector<std::thread> others;
  for (int i = 0; i < kThreads; ++i) {
    others.emplace_back([this, &mailbox] {
      for (int post = 0; post < kPosts; ++post) {
        QMetaObject::invokeMethod(&mailbox, "Take", Qt::QueuedConnection);
        time_->NowMs();
      }
    });
  }
  time_->Advance(500);
  for (std::thread& other : others) other.join();
  time_->Settle();
  EXPECT_EQ(mailbox.taken(), kThreads * kPosts);
  EXPECT_EQ(Now(), 500);
}

TEST_F(OtherThreads, OfQtKeepTheirOwnEventLoops) {
  QThread thread;
  Mailbox here;
  auto* there = new Mailbox;
  there->moveToThread(&thread);
  QObject::connect(there, &Mailbox::Taken, &here, &Mailbox::Take, Qt::QueuedConnection);
  QObject::connect(&thread, &QThread::finished, there, &QObject::deleteLater);
  QEventLoop loop;
  QObject::connect(&here, &Mailbox::Taken, &loop, &QEventLoop::quit);
  thread.start();
  QMetaObject::invokeMethod(there, "Take", Qt::QueuedConnection);
  loop.exec();
  thread.quit();
  thread.wait();
  EXPECT_EQ(here.taken(), 1);
}

TEST(Windows, OfThePlatformOffscreenAreExposed) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  auto* time = new VirtualEventDispatcher;
  QCoreApplication::setEventDispatcher(time);
  QGuiApplication application(argument_count, arguments);
  QWindow window;
  window.show();
  EXPECT_FALSE(window.isExposed());
  time->Settle();
  EXPECT_TRUE(window.isExposed());
}

}  // namespace

}  // namespace tavi

#include "virtual_event_dispatcher_test.moc"
