// Virtual time while code blocks: sleeping handlers, nested event loops, other threads, windows.
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
#include <QWindow>

#include "host/simulation/platform_events.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/host/simulation/virtual_time_fixture.h"

namespace tavi {

namespace {

// The target of other threads' posts, invoked by name: a function object that crosses threads inside Qt looks like a
// race to ThreadSanitizer, which does not see Qt's own locks.
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

using BlockingSleep = VirtualTimeFixture;
using EventLoops = VirtualTimeFixture;
using OtherThreads = VirtualTimeFixture;

TEST_F(BlockingSleep, FiresTheWorkersTimersOnly) {
  const auto worker = StartWorker("worker", 10);
  const auto main = Start("main", 10);
  time_->Sleep(25);
  EXPECT_EQ(TakeLog(), "10ms worker, 20ms worker");
  EXPECT_EQ(Now(), 25);
  // The other one was due at 10 and at 20; 20 is in the past at 25.
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
  // A timer does not fire inside its own handler. At 30 its due time was 20 and then, being in the past, 40.
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
  // Many times, because the end may come at any point of the loop's way to its wait.
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
  const PlatformEvents events;
  auto* time = new VirtualEventDispatcher;
  events.DeliverBy(time);
  QCoreApplication::setEventDispatcher(time);
  int argument_count = 1;
  char program_name[] = "windows";
  char* arguments[] = {program_name, nullptr};
  QGuiApplication application(argument_count, arguments);
  QWindow window;
  window.show();
  EXPECT_FALSE(window.isExposed());
  time->Settle();
  EXPECT_TRUE(window.isExposed());
}

}  // namespace

}  // namespace tavi

#include "virtual_event_loop_test.moc"
