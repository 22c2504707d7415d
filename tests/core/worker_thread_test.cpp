// Runs of workers, with real threads in real time and without threads in virtual time: the same stories apply.
#include "core/worker_thread.h"

#include <functional>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QVariant>

#include "taviinputmanager/virtual_time.h"
#include "tests/core/worker_thread_probe.h"

namespace taviinputmanager {

namespace {

using namespace probe;

constexpr int kPatienceMs = 60000;  // for a thread to start on a busy machine

class WorkerRun : public testing::TestWithParam<Mode> {
 protected:
  WorkerRun() : owner_(&journal_), program_(GetParam()) {}

  bool is_virtual() const { return GetParam() == Mode::kVirtual; }
  bool RunUntil(const std::function<bool()>& condition) { return program_.RunUntil(condition); }
  bool RunUntilSaid(const char* what) {
    return RunUntil([this, what] { return journal_.Count(QString::fromLatin1(what)) > 0; });
  }
  bool RunUntilGone(const QPointer<WorkerThread>& run) {
    return RunUntil([&run] { return run.isNull(); });
  }

  Journal journal_;
  Owner owner_;
  Program program_;  // destroyed first, which ends all runs
};

INSTANTIATE_TEST_SUITE_P(Time, WorkerRun, testing::Values(Mode::kReal, Mode::kVirtual), ModeName);

TEST_P(WorkerRun, TicksAndEndsWithItsSignal) {
  const QPointer<WorkerThread> run = owner_.StartRun(3);
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "process, tick, tick, tick, deleted");
  EXPECT_EQ(owner_.ticks, 3);
  EXPECT_TRUE(owner_.ticks_came_in_order);
  EXPECT_EQ(owner_.finished_runs, 1);
}

TEST_P(WorkerRun, BeginsAndTicksWhileItsCallerBlocks) {
  owner_.StartRun(kEndless);
  for (int i = 0; i < kPatienceMs && journal_.Count(QStringLiteral("tick")) < 3; ++i) Clock::Sleep(1);
  EXPECT_GE(journal_.Count(QStringLiteral("tick")), 3);
  EXPECT_EQ(journal_.Take().substr(0, 13), "process, tick");
  EXPECT_EQ(owner_.ticks, 0);  // its signals wait for the event loop
  EXPECT_TRUE(RunUntil([this] { return owner_.ticks >= 3; }));
  EXPECT_TRUE(owner_.ticks_came_in_order);
}

TEST_P(WorkerRun, StartsInsideANestedEventLoop) {
  QEventLoop loop;
  QObject::connect(&owner_, &Owner::Ended, &loop, &QEventLoop::quit);
  QTimer::singleShot(0, &owner_, [this] { owner_.StartRun(3); });
  loop.exec();
  EXPECT_EQ(owner_.ticks, 3);
  EXPECT_EQ(owner_.finished_runs, 1);
  EXPECT_EQ(journal_.Take(), "process, tick, tick, tick, deleted");
}

TEST_P(WorkerRun, BeginsBeforeItsFirstRequest) {
  owner_.StartRun(kEndless, 1000);
  Q_EMIT owner_.Request(QStringLiteral("request"));
  ASSERT_TRUE(RunUntilSaid("request"));
  EXPECT_EQ(journal_.Take(), "process, request");
}

TEST_P(WorkerRun, HasAThreadOfItsOwnInRealTimeOnly) {
  auto* worker = new TickWorker(&journal_, kEndless, 1);
  auto* run = new WorkerThread(worker);
  QObject::connect(run, &WorkerThread::started, worker, &TickWorker::Process);
  run->Start();
  ASSERT_TRUE(RunUntil([worker] { return worker->process_thread() != nullptr; }));
  QThread* main_thread = QCoreApplication::instance()->thread();
  EXPECT_EQ(worker->process_thread(), is_virtual() ? main_thread : run);
  EXPECT_EQ(run->isRunning(), !is_virtual());
  EXPECT_EQ(run->thread(), main_thread);
}

TEST_P(WorkerRun, IsStartedOnce) {
  int started = 0;
  WorkerThread* run = owner_.MakeRun(kEndless, 1000);
  QObject::connect(
      run, &WorkerThread::started, &owner_, [&started] { ++started; }, Qt::QueuedConnection);
  run->Start();
  run->Start();
  Q_EMIT owner_.Request(QStringLiteral("request"));
  ASSERT_TRUE(RunUntilSaid("request"));
  program_.DeliverPosted();
  EXPECT_EQ(journal_.Take(), "process, request");
  EXPECT_EQ(started, 1);
}

TEST_P(WorkerRun, DeliversItsResultsAfterTheHandlerUnderWay) {
  owner_.StartRun(kEndless);
  ASSERT_TRUE(RunUntil([this] { return owner_.ticks > 0; }));
  const int before = owner_.ticks;
  journal_.Take();
  while (journal_.Count(QStringLiteral("tick")) == 0) Clock::Sleep(1);
  EXPECT_EQ(owner_.ticks, before);
  EXPECT_TRUE(RunUntil([this, before] { return owner_.ticks > before; }));
}

TEST_P(WorkerRun, GoesOnTickingDuringABlockingSleep) {
  // It ends in between: exactly ten ticks come, whether the sleeper is in a handler or not.
  owner_.StartRun(10);
  ASSERT_TRUE(RunUntilSaid("tick"));
  QMetaObject::invokeMethod(
      &owner_,
      [this] {
        while (journal_.Count(QStringLiteral("tick")) < 10) Clock::Sleep(1);
        Clock::Sleep(5);
      },
      Qt::QueuedConnection);
  ASSERT_TRUE(RunUntil([this] { return owner_.finished_runs == 1; }));
  EXPECT_EQ(owner_.ticks, 10);
  EXPECT_TRUE(owner_.ticks_came_in_order);
}

TEST_P(WorkerRun, TicksNoMoreOnceItsWorkerGaveItselfUp) {
  // The request that ends the run and a long sleep are handled together, before any deferred delete.
  owner_.StartRun(kEndless);
  ASSERT_TRUE(RunUntilSaid("tick"));
  journal_.Take();
  Q_EMIT owner_.Stop();
  int ticks_before = -1;
  int ticks_after = -1;
  QMetaObject::invokeMethod(
      &owner_,
      [&] {
        while (journal_.Count(QStringLiteral("finish")) == 0) Clock::Sleep(1);
        ticks_before = journal_.Count(QStringLiteral("tick"));
        Clock::Sleep(10);
        ticks_after = journal_.Count(QStringLiteral("tick"));
      },
      Qt::QueuedConnection);
  ASSERT_TRUE(RunUntil([this] { return owner_.finished_runs == 1; }));
  EXPECT_GE(ticks_before, 0);
  EXPECT_EQ(ticks_after, ticks_before);
}

TEST_P(WorkerRun, MayBeQuitFromOutside) {
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless);
  ASSERT_TRUE(RunUntilSaid("tick"));
  run->quit();
  EXPECT_TRUE(run);  // it deletes itself only after `finished`
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(owner_.finished_runs, 1);
  EXPECT_EQ(live_workers, 0);
}

TEST_P(WorkerRun, IsQuitOnceOnly) {
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless);
  ASSERT_TRUE(RunUntilSaid("tick"));
  run->quit();
  run->quit();
  QMetaObject::invokeMethod(run, "quit", Qt::QueuedConnection);
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(owner_.finished_runs, 1);
  EXPECT_EQ(journal_.Count(QStringLiteral("deleted")), 1);
}

TEST_P(WorkerRun, QuitBeforeItsBeginningNeverRuns) {
  int started = 0;
  const QPointer<WorkerThread> run = owner_.MakeRun(kEndless);
  QObject::connect(
      run, &WorkerThread::started, &owner_, [&started] { ++started; }, Qt::QueuedConnection);
  Q_EMIT owner_.Request(QStringLiteral("request"));
  run->quit();
  run->quit();
  run->Start();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "deleted");
  EXPECT_EQ(started, 0);
  EXPECT_EQ(owner_.finished_runs, 1);
}

// A thread that starts late no longer begins; a fast one has begun, and nothing comes after the quit.
TEST_P(WorkerRun, QuitRightAfterItsStartEndsOnce) {
  for (int i = 0; i < 50; ++i) {
    const QPointer<WorkerThread> run = owner_.StartRun(kEndless, 1000);
    run->quit();
    Q_EMIT owner_.Request(QStringLiteral("request"));
    ASSERT_TRUE(RunUntilGone(run));
    const std::string said = journal_.Take();
    EXPECT_TRUE(said == "process, deleted" || (!is_virtual() && said == "deleted")) << said;
  }
  EXPECT_EQ(owner_.finished_runs, 50);
  EXPECT_EQ(live_workers, 0);
}

TEST_P(WorkerRun, QuitWithoutAStartEndsToo) {
  const QPointer<WorkerThread> run = new WorkerThread(new TickWorker(&journal_, 1, 1));
  run->quit();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "deleted");
}

TEST_P(WorkerRun, StartedAfterItsQuitNeverRuns) {
  auto* worker = new TickWorker(&journal_, 1, 1);
  const QPointer<WorkerThread> run = new WorkerThread(worker);
  QObject::connect(run, &WorkerThread::started, worker, &TickWorker::Process);
  run->quit();
  run->Start();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "deleted");
}

TEST_P(WorkerRun, QuitKeepsRequestsFromTheWorker) {
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless, 1000);
  ASSERT_TRUE(RunUntilSaid("process"));
  journal_.Take();
  run->quit();
  Q_EMIT owner_.Request(QStringLiteral("request"));
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "deleted");
}

TEST_P(WorkerRun, LetsAWorkerGiveItselfUpByAPlainConnection) {
  auto* worker = new TickWorker(&journal_, 2, 1);
  const QPointer<WorkerThread> run = new WorkerThread(worker);
  QObject::connect(run, &WorkerThread::started, worker, &TickWorker::Process);
  QObject::connect(&owner_, &Owner::Request, worker, &TickWorker::Request, Qt::QueuedConnection);
  QObject::connect(worker, &TickWorker::Finished, worker, &QObject::deleteLater, Qt::DirectConnection);
  QObject::connect(worker, &TickWorker::Ticked, &owner_, &Owner::OnTicked, Qt::QueuedConnection);
  run->Start();
  ASSERT_TRUE(RunUntil([this] { return owner_.ticks == 2; }));
  for (int i = 0; i < 5; ++i) Clock::Sleep(1);  // in which it would tick on
  program_.DeliverPosted();
  Q_EMIT owner_.Request(QStringLiteral("request"));
  Clock::Sleep(5);
  program_.DeliverPosted();
  run->quit();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "process, tick, tick, deleted");
}

TEST_P(WorkerRun, DeletesItsWorkerBeforeOthersHearThatItFinished) {
  auto* worker = new TickWorker(&journal_, 2, 1);
  const QPointer<WorkerThread> run = new WorkerThread(worker);
  QObject::connect(run, &WorkerThread::started, worker, &TickWorker::Process);
  QObject::connect(worker, &TickWorker::Finished, run, &WorkerThread::quit, Qt::QueuedConnection);
  QThread* deleted_on = nullptr;
  QObject::connect(
      worker, &QObject::destroyed, worker, [&deleted_on] { deleted_on = QThread::currentThread(); },
      Qt::DirectConnection);
  int live_at_finish = -1;
  QObject::connect(run, &QThread::finished, &owner_, [&live_at_finish] { live_at_finish = live_workers; });
  run->Start();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(live_at_finish, 0);
  EXPECT_EQ(deleted_on, owner_.thread());
  EXPECT_GE(journal_.Count(QStringLiteral("tick")), 2);
}

TEST_P(WorkerRun, RunsWhatWasPostedToItBeforeItGoes) {
  owner_.StartRepeatingRun(5, false);
  ASSERT_TRUE(RunUntil([this] { return owner_.destroyed_runs == 6; }));
  EXPECT_EQ(owner_.repeats_seen, 6);
  EXPECT_EQ(owner_.finished_runs, 6);
  EXPECT_EQ(live_workers, 0);
}

TEST_P(WorkerRun, RunsWhatWasPostedToItAlsoAfterAnEarlierQuit) {
  owner_.StartRepeatingRun(5, true);
  ASSERT_TRUE(RunUntil([this] { return owner_.destroyed_runs == 6; }));
  EXPECT_EQ(owner_.repeats_seen, 6);
  EXPECT_EQ(owner_.finished_runs, 6);
}

TEST_P(WorkerRun, StandsBesideOthers) {
  QList<QPointer<WorkerThread>> runs;
  for (int i = 0; i < 16; ++i) runs.append(owner_.StartRun(5));
  ASSERT_TRUE(RunUntil([this] { return owner_.finished_runs == 16; }));
  for (const auto& run : runs) EXPECT_TRUE(RunUntilGone(run));
  EXPECT_EQ(owner_.ticks, 16 * 5);
  EXPECT_EQ(live_workers, 0);
}

TEST_P(WorkerRun, MakesPreciseMarkedTimersThatTheWorkerOwns) {
  QObject worker;
  QTimer* timer = WorkerThread::MakeWorkerTimer(&worker);
  EXPECT_EQ(timer->parent(), &worker);
  EXPECT_EQ(timer->timerType(), Qt::PreciseTimer);
  EXPECT_TRUE(timer->property(kWorkerTimerProperty).toBool());
  EXPECT_FALSE(timer->isActive());
  EXPECT_FALSE(timer->isSingleShot());
}

class RealRun : public WorkerRun {};
class VirtualRun : public WorkerRun {};
INSTANTIATE_TEST_SUITE_P(Time, RealRun, testing::Values(Mode::kReal), ModeName);
INSTANTIATE_TEST_SUITE_P(Time, VirtualRun, testing::Values(Mode::kVirtual), ModeName);

TEST_P(RealRun, QuitKeepsAwayWhatTheThreadHasCollectedAlready) {
  // The worker is held in one of its slots. Requests and the overdue ticks of a timer are queued; an event loop that is
  // told to exit would still deliver them.
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless, 0);
  ASSERT_TRUE(RunUntilSaid("process"));
  Q_EMIT owner_.Block();
  for (int i = 0; i < 3; ++i) Q_EMIT owner_.Request(QStringLiteral("request"));
  entered.acquire();
  journal_.Take();
  run->quit();
  leave.release();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "unblocked, deleted");
}

TEST_P(RealRun, AnswersRequestsThatWereOnTheirWayWhenItsWorkerGaveItselfUp) {
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless, 1000);
  ASSERT_TRUE(RunUntilSaid("process"));
  Q_EMIT owner_.Block();
  entered.acquire();
  Q_EMIT owner_.Stop();
  Q_EMIT owner_.Request(QStringLiteral("request"));
  leave.release();
  // The worker's request to quit is queued on the main thread until it is processed here.
  while (journal_.Count(QStringLiteral("request")) == 0) Clock::Sleep(1);
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "process, unblocked, finish, request, deleted");
}

TEST_P(RealRun, LosesNothingOfRequestsThatMeetTheEndOfItsWorker) {
  // A leak checker would find a lost request.
  for (int i = 0; i < 300; ++i) {
    const QPointer<WorkerThread> run = owner_.StartRun(1, 0);
    while (run) {
      for (int k = 0; k < 20; ++k) Q_EMIT owner_.Request(QString());
      QCoreApplication::processEvents();
    }
  }
  EXPECT_EQ(owner_.finished_runs, 300);
  EXPECT_EQ(live_workers, 0);
}

TEST_P(RealRun, EndsWhereTheSystemHasNoThreadToGive) {
  const QPointer<WorkerThread> run = owner_.MakeRun(kEndless);
  run->setStackSize(1);  // less than any thread needs: it is refused
  run->Start();
  EXPECT_EQ(live_workers, 1);  // its caller has not returned
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "deleted");
  EXPECT_EQ(owner_.finished_runs, 1);
}

TEST_P(VirtualRun, QuitDeletesTheWorkerAtOnce) {
  WorkerThread* run = owner_.StartRun(kEndless);
  ASSERT_TRUE(RunUntilSaid("tick"));
  EXPECT_EQ(live_workers, 1);
  run->quit();
  EXPECT_EQ(live_workers, 0);
  EXPECT_EQ(owner_.finished_runs, 0);
  program_.DeliverPosted();
  EXPECT_EQ(owner_.finished_runs, 1);
}

TEST_P(VirtualRun, AnswersRequestsThatWereOnTheirWayWhenItsWorkerGaveItselfUp) {
  owner_.StartRun(kEndless, 1000);
  program_.DeliverPosted();
  Q_EMIT owner_.Stop();
  Q_EMIT owner_.Request(QStringLiteral("request"));
  program_.DeliverPosted();
  EXPECT_EQ(journal_.Take(), "process, finish, request, deleted");
}

TEST_P(VirtualRun, TakesItsTimeFromTheVirtualClock) {
  owner_.StartRun(3, 25);
  program_.time()->Advance(24);
  EXPECT_EQ(journal_.Take(), "process");
  program_.time()->Advance(1);
  EXPECT_EQ(journal_.Take(), "tick");
  program_.time()->Advance(50);
  EXPECT_EQ(journal_.Take(), "tick, tick, deleted");
  EXPECT_EQ(owner_.finished_runs, 1);
}

TEST_P(VirtualRun, BeginsInsideItsStart) {
  owner_.StartRun(kEndless, 10);
  EXPECT_EQ(journal_.Take(), "process");
}

TEST_P(VirtualRun, TicksAtItsTimesDuringABlockingSleep) {
  owner_.StartRun(kEndless, 10);
  Clock::Sleep(35);
  EXPECT_EQ(journal_.Take(), "process, tick, tick, tick");
  EXPECT_EQ(owner_.ticks, 0);
  program_.time()->Settle();
  EXPECT_EQ(owner_.ticks, 3);
}

}  // namespace

}  // namespace taviinputmanager
