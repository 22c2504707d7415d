// Programs that end while workers run.
#include <cstdlib>
#include <gtest/gtest.h>

#include "core/worker_thread.h"
#include "tests/core/worker_thread_probe.h"

namespace taviinputmanager {

namespace {

using namespace probe;

// A program that returns from its main function with gestures in progress, in every state of a run.
class LeavingMain : public testing::TestWithParam<Mode> {
 protected:
  LeavingMain() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  // Ends the process: with 0 if everything was correct.
  [[noreturn]] static void LeaveWithBusyRuns(Mode mode) {
    static Owner owner(nullptr);  // outlives the application, as the library's singletons do
    int ticks = 0;
    {
      Program program(mode);
      for (int i = 0; i < 8; ++i) owner.StartRun(kEndless, 0);
      if (!program.RunUntil([] { return owner.ticks > 100; })) std::exit(1);
      WorkerThread* quit_already = owner.StartRun(kEndless, 0);
      program.DeliverPosted();
      quit_already->quit();
      owner.StartRun(kEndless, 0);
      owner.StartRun(kEndless, 0)->quit();
      Q_EMIT owner.Request(QStringLiteral("request"));
      ticks = owner.ticks;
    }
    if (live_workers != 0) std::exit(2);
    if (owner.ticks != ticks) std::exit(3);
    if (owner.finished_runs != 0) std::exit(4);
    std::exit(0);
  }

  // A second application in the same process is handled like the first.
  [[noreturn]] static void LeaveTwice(Mode mode) {
    for (int i = 0; i < 2; ++i) {
      Owner owner(nullptr);
      Program program(mode);
      owner.StartRun(kEndless, 0);
      if (!program.RunUntil([&owner] { return owner.ticks > 10; })) std::exit(1);
    }
    std::exit(live_workers == 0 ? 0 : 2);
  }

  // A worker that does not return delays the end only for a while.
  [[noreturn]] static void LeaveWithAStuckWorker() {
    WorkerThread* run = nullptr;
    {
      Program program(Mode::kReal);
      auto* worker = new TickWorker(nullptr, kEndless, 0);
      run = new WorkerThread(worker);
      QObject::connect(run, &WorkerThread::started, worker, &TickWorker::Block);
      run->Start();
      if (!program.RunUntil([] { return entered.tryAcquire(); })) std::exit(1);
    }
    const bool was_left_alone = live_workers == 1 && run->isRunning();
    leave.release();
    const bool came_back = run->wait(60000);
    std::exit(was_left_alone && came_back ? 0 : 2);
  }
};

INSTANTIATE_TEST_SUITE_P(Time, LeavingMain, testing::Values(Mode::kReal, Mode::kVirtual), ModeName);

TEST_P(LeavingMain, WithBusyRunsIsSafe) { EXPECT_EXIT(LeaveWithBusyRuns(GetParam()), testing::ExitedWithCode(0), ""); }

TEST_P(LeavingMain, IsSafeForEveryApplicationOfAProcess) {
  EXPECT_EXIT(LeaveTwice(GetParam()), testing::ExitedWithCode(0), "");
}

class LeavingMainStuck : public LeavingMain {};
INSTANTIATE_TEST_SUITE_P(Time, LeavingMainStuck, testing::Values(Mode::kReal), ModeName);

TEST_P(LeavingMainStuck, WaitsWithinALimit) { EXPECT_EXIT(LeaveWithAStuckWorker(), testing::ExitedWithCode(0), ""); }

}  // namespace

}  // namespace taviinputmanager
