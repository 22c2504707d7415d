// In real time, because the subject is an event loop that is blocked.
#include "host/play/watchdog.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>

#include "tests/support/application_object.h"

namespace tavi {
namespace {

class WatchdogTest : public testing::Test {
 protected:
  WatchdogTest() = default;

  ApplicationObject<QCoreApplication> application_;
  std::atomic<int> bites_{0};
};

TEST_F(WatchdogTest, BitesOnceWhenTheLoopStandsStill) {
  Watchdog dog(10, 5, [this] { ++bites_; });
  while (bites_ == 0) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_EQ(bites_, 1);
}

// A patience of twenty checks, and a pulse at half of one.
TEST_F(WatchdogTest, LeavesALoopAloneThatRuns) {
  Watchdog dog(100, 20, [this] { ++bites_; });
  QEventLoop loop;
  QTimer::singleShot(400, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_EQ(bites_, 0);
}

}  // namespace
}  // namespace tavi
