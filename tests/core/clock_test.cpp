#include "core/clock.h"

#include <ctime>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

#include <QCoreApplication>
#include <QCursor>
#include <QDateTime>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPoint>
#include <QTime>

#include "host/simulation/virtual_event_dispatcher.h"

namespace taviinputmanager {

namespace {

int argument_count = 1;
char program_name[] = "clock_test";
char* arguments[] = {program_name, nullptr};

void ExpectRealTime() {
  EXPECT_FALSE(Clock::IsVirtual());
  const qint64 before = QDateTime::currentMSecsSinceEpoch();
  const qint64 now = Clock::NowMs();
  const qint64 after = QDateTime::currentMSecsSinceEpoch();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

TEST(RealClock, IsTheOneOfTheSystem) { ExpectRealTime(); }

TEST(RealClock, TellsTheLocalTimeOfDay) {
  const QTime before = QTime::currentTime();
  const QTime now = Clock::TimeOfDay();
  // Over midnight the difference comes out close to minus one day.
  const int passed = before.msecsTo(now);
  const int limit = before.msecsTo(QTime::currentTime());
  EXPECT_TRUE(limit < 0 || (passed >= 0 && passed <= limit));
}

TEST(RealClock, SleepBlocks) {
  QElapsedTimer timer;
  timer.start();
  Clock::Sleep(2);
  EXPECT_GE(timer.elapsed(), 2);
}

TEST(RealClock, NoPauseIsNone) {
  Clock::Sleep(0);
  Clock::Sleep(-1);  // as a large number it would never return
}

TEST(RealClock, TakesThePointerFromQt) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argument_count, arguments);
  for (const QPoint& point : {QPoint(12, 34), QPoint(56, 78)}) {
    QCursor::setPos(point);
    EXPECT_EQ(Clock::Pointer(), point);
  }
}

TEST(RealClock, StaysWithoutAnApplication) {
  Clock::FindVirtualTime();
  ExpectRealTime();
}

TEST(RealClock, StaysUnderADispatcherOfQt) {
  QCoreApplication application(argument_count, arguments);
  Clock::FindVirtualTime();
  ExpectRealTime();
}

class VirtualClock : public testing::Test {
 protected:
  explicit VirtualClock(qint64 start_ms = tavi::VirtualEventDispatcher::kDefaultStartMs)
      : time_(new tavi::VirtualEventDispatcher(start_ms)) {
    QCoreApplication::setEventDispatcher(time_);
    application_ = std::make_unique<QCoreApplication>(argument_count, arguments);
  }

  tavi::VirtualEventDispatcher* time_;  // owned by the application
  std::unique_ptr<QCoreApplication> application_;
};

TEST_F(VirtualClock, IsNotUsedBeforeItWasLookedFor) {
  ExpectRealTime();
  Clock::FindVirtualTime();
  EXPECT_TRUE(Clock::IsVirtual());
}

TEST_F(VirtualClock, TellsTheDispatchersTimeAtEveryCall) {
  Clock::FindVirtualTime();
  EXPECT_EQ(Clock::NowMs(), 1577836800000);
  time_->Advance(1500);
  EXPECT_EQ(Clock::NowMs(), 1577836801500);
}

TEST_F(VirtualClock, TellsTheTimeOfDayInUtcWhereverItRuns) {
  qputenv("TZ", "Asia/Tokyo");
  tzset();
  Clock::FindVirtualTime();
  EXPECT_EQ(Clock::TimeOfDay(), QTime(0, 0));  // the clock starts at a midnight
  time_->Advance(3 * 3600 * 1000 + 4 * 60 * 1000 + 5 * 1000 + 6);
  EXPECT_EQ(Clock::TimeOfDay(), QTime(3, 4, 5, 6));
}

TEST_F(VirtualClock, SleepMovesItWithoutWaiting) {
  Clock::FindVirtualTime();
  Clock::Sleep(3600 * 1000);
  EXPECT_EQ(Clock::NowMs(), 1577836800000 + 3600 * 1000);
}

TEST_F(VirtualClock, NoPauseIsNone) {
  Clock::FindVirtualTime();
  Clock::Sleep(0);
  Clock::Sleep(-1);
  EXPECT_EQ(Clock::NowMs(), 1577836800000);
}

TEST_F(VirtualClock, TakesThePointerFromTheDispatcher) {
  Clock::FindVirtualTime();
  for (const QPoint& point : {QPoint(640, 360), QPoint(1, 2)}) {
    time_->SetPointer(point);
    EXPECT_EQ(Clock::Pointer(), point);
  }
}

TEST_F(VirtualClock, IsReadByOtherThreads) {
  Clock::FindVirtualTime();
  std::thread other([] {
    qint64 last = 0;
    for (int i = 0; i < 1000; ++i) {
      const qint64 now = Clock::NowMs();
      EXPECT_LE(last, now);
      last = now;
    }
  });
  for (int i = 0; i < 1000; ++i) time_->Advance(1);
  other.join();
}

TEST_F(VirtualClock, IsFoundAgainWithoutHarm) {
  Clock::FindVirtualTime();
  Clock::FindVirtualTime();
  EXPECT_TRUE(Clock::IsVirtual());
  application_.reset();
  ExpectRealTime();
}

TEST_F(VirtualClock, GivesWayToRealTimeWhenItsDispatcherGoes) {
  Clock::FindVirtualTime();
  application_.reset();
  ExpectRealTime();
  Clock::Sleep(1);
}

TEST_F(VirtualClock, GivesWayToTheNextDispatcherThatIsFound) {
  Clock::FindVirtualTime();
  application_.reset();
  auto* next = new tavi::VirtualEventDispatcher(5000);
  QCoreApplication::setEventDispatcher(next);
  application_ = std::make_unique<QCoreApplication>(argument_count, arguments);
  Clock::FindVirtualTime();
  EXPECT_EQ(Clock::NowMs(), 5000);
}

}  // namespace

}  // namespace taviinputmanager
