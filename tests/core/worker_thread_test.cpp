// Runs of workers, with real threads on the real clock and without threads on the virtual one: the same stories hold.
#include "core/worker_thread.h"

#include <atomic>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QSemaphore>
#include <QTimer>
#include <QVariant>

#include "core/clock.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "taviinputmanager/virtual_time.h"

namespace taviinputmanager {

namespace {

int argument_count = 1;
char program_name[] = "worker_thread_test";
char* arguments[] = {program_name, nullptr};

// What happened to workers, told from any thread.
class Journal {
 public:
  // Takes the lock once more, so that ThreadSanitizer, which does not see how Qt waits for a thread, knows that the
  // last line was written.
  ~Journal() { Take(); }
  void Add(const QString& what) {
    const std::lock_guard<std::mutex> lock(mutex_);
    lines_.append(what);
  }
  std::string Take() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(lines_, {}).join(QStringLiteral(", ")).toStdString();
  }
  int Count(const QString& what) {
    const std::lock_guard<std::mutex> lock(mutex_);
    return lines_.count(what);
  }

 private:
  std::mutex mutex_;
  QStringList lines_;
};

std::atomic<int> live_workers{0};

// Where a worker says that it is in its slot, and waits to be let out of it.
QSemaphore entered;
QSemaphore leave;

// Ticks `ticks` times, every `interval_ms`, and then says that it has finished, at each further tick again.
class TickWorker : public QObject {
  Q_OBJECT

 public:
  TickWorker(Journal* journal, int ticks, int interval_ms)
      : journal_(journal), ticks_(ticks), interval_ms_(interval_ms) {
    ++live_workers;
  }
  ~TickWorker() override {
    Add("deleted");
    --live_workers;
  }

  QThread* process_thread() const { return process_thread_; }

 public Q_SLOTS:
  void Process() {
    process_thread_ = QThread::currentThread();
    Add("process");
    auto* timer = WorkerThread::MakeWorkerTimer(this);
    connect(timer, &QTimer::timeout, this, &TickWorker::OnTick);
    timer->start(interval_ms_);
  }
  void Request(const QString& what) { Add(what); }
  void Block() {
    entered.release();
    leave.acquire();
    Add("unblocked");
  }
  void Finish() {
    Add("finish");
    Q_EMIT Finished();
  }

 Q_SIGNALS:
  void Ticked(int count);
  void Finished();

 private:
  void Add(const char* what) { Add(QString::fromLatin1(what)); }
  void Add(const QString& what) {
    if (journal_) journal_->Add(what);
  }
  void OnTick() {
    Add("tick");
    Q_EMIT Ticked(++count_);
    if (count_ >= ticks_) Q_EMIT Finished();
  }

  Journal* journal_;  // null: nobody reads
  int ticks_;
  int interval_ms_;
  int count_ = 0;
  std::atomic<QThread*> process_thread_{nullptr};
};

constexpr int kEndless = 1000000000;

// The side of a worker's owner: a simulator, say.
class Owner : public QObject {
  Q_OBJECT

 public:
  explicit Owner(Journal* journal) : journal_(journal) {}

  // A run that is over with the worker's own signal.
  WorkerThread* StartRun(int ticks, int interval_ms = 1) {
    auto* worker = new TickWorker(journal_, ticks, interval_ms);
    auto* run = new WorkerThread(worker);
    connect(run, &QThread::started, worker, &TickWorker::Process);
    connect(this, &Owner::Request, worker, &TickWorker::Request, Qt::QueuedConnection);
    connect(this, &Owner::Block, worker, &TickWorker::Block, Qt::QueuedConnection);
    connect(this, &Owner::Stop, worker, &TickWorker::Finish, Qt::QueuedConnection);
    connect(worker, &TickWorker::Ticked, this, &Owner::OnTicked, Qt::QueuedConnection);
    connect(worker, &TickWorker::Finished, run, &WorkerThread::quit, Qt::QueuedConnection);
    run->DeleteWorkerOn(worker, &TickWorker::Finished);
    connect(run, &QThread::finished, this, [this] { ++finished_runs; });
    run->Start();
    return run;
  }

  // A run that its owner ends in a call posted to the run, and that is followed by another `repeats` times. With
  // `quit_at_once` the run is quit by the signal too, ahead of that call.
  void StartRepeatingRun(int repeats, bool quit_at_once) {
    auto* worker = new TickWorker(journal_, 2, 1);
    auto* run = new WorkerThread(worker);
    connect(run, &QThread::started, worker, &TickWorker::Process);
    if (quit_at_once) connect(worker, &TickWorker::Finished, run, &WorkerThread::quit, Qt::QueuedConnection);
    run->DeleteWorkerOn(worker, &TickWorker::Finished);
    const auto repeat = [=] {
      run->quit();
      ++repeats_seen;
      if (repeats > 0) StartRepeatingRun(repeats - 1, quit_at_once);
    };
    connect(
        worker, &TickWorker::Finished, run,
        [run, repeat] { QMetaObject::invokeMethod(run, repeat, Qt::QueuedConnection); }, Qt::QueuedConnection);
    connect(run, &QThread::finished, this, [this] { ++finished_runs; });
    connect(run, &QObject::destroyed, this, [this] { ++destroyed_runs; });
    run->Start();
  }

  int ticks = 0;
  int last_tick = 0;
  bool ticks_came_in_order = true;
  int finished_runs = 0;
  int destroyed_runs = 0;
  int repeats_seen = 0;

 Q_SIGNALS:
  void Request(const QString& what);
  void Block();
  void Stop();

 public Q_SLOTS:
  void OnTicked(int count) {
    if (QThread::currentThread() != thread()) std::abort();
    ticks_came_in_order = ticks_came_in_order && count == last_tick + 1;
    last_tick = count;
    ++ticks;
  }

 private:
  Journal* journal_;
};

enum class Mode { kReal, kVirtual };

// An application with its kind of time.
class Program {
 public:
  explicit Program(Mode mode) {
    if (mode == Mode::kVirtual) {
      time_ = new tavi::VirtualEventDispatcher;
      QCoreApplication::setEventDispatcher(time_);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count, arguments);
    Clock::FindVirtualTime();
  }

  // Lets time pass until `condition` holds; false where that takes too long to be right.
  bool RunUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer limit(60000);
    QTimer heartbeat;
    if (!time_) heartbeat.start(1);
    while (!condition()) {
      if (time_ && time_->NowMs() > tavi::VirtualEventDispatcher::kDefaultStartMs + 60000) return false;
      if (limit.hasExpired()) return false;
      if (time_) {
        time_->Advance(1);
      } else {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      }
    }
    return true;
  }
  // What is posted to the main thread by now is delivered, and whatever that posts.
  void DeliverPosted() {
    if (time_) return time_->Settle();
    for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  tavi::VirtualEventDispatcher* time() { return time_; }

 private:
  tavi::VirtualEventDispatcher* time_ = nullptr;  // the application's
  std::unique_ptr<QGuiApplication> application_;
};

std::string ModeName(const testing::TestParamInfo<Mode>& info) {
  return info.param == Mode::kReal ? "Real" : "Virtual";
}

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
  Program program_;  // the first to go, which ends all runs
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

TEST_P(WorkerRun, DoesNothingBeforeTheCallerReturns) {
  WorkerThread* run = owner_.StartRun(kEndless);
  Clock::Sleep(5);  // blocks the caller for longer than a thread needs to begin
  EXPECT_FALSE(run->isRunning());
  EXPECT_EQ(journal_.Take(), "");
  EXPECT_TRUE(RunUntilSaid("process"));
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
  QObject::connect(run, &QThread::started, worker, &TickWorker::Process);
  run->Start();
  ASSERT_TRUE(RunUntil([worker] { return worker->process_thread() != nullptr; }));
  QThread* main_thread = QCoreApplication::instance()->thread();
  EXPECT_EQ(worker->process_thread(), is_virtual() ? main_thread : run);
  EXPECT_EQ(run->isRunning(), !is_virtual());
  EXPECT_EQ(run->thread(), main_thread);
}

TEST_P(WorkerRun, IsStartedOnce) {
  int started = 0;
  WorkerThread* run = owner_.StartRun(kEndless, 1000);
  QObject::connect(
      run, &QThread::started, &owner_, [&started] { ++started; }, Qt::QueuedConnection);
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
  // It ends on the way: ten ticks come and no more, whether the sleeper is in a handler or not.
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
  // The request that ends the run and a long sleep are handled in one go, before any deferred delete.
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
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless);
  QObject::connect(
      run, &QThread::started, &owner_, [&started] { ++started; }, Qt::QueuedConnection);
  Q_EMIT owner_.Request(QStringLiteral("request"));
  run->quit();
  run->quit();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "deleted");
  EXPECT_EQ(started, 0);
  EXPECT_EQ(owner_.finished_runs, 1);
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
  QObject::connect(run, &QThread::started, worker, &TickWorker::Process);
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

TEST_P(WorkerRun, LetsAWorkerDeleteItselfByAPlainConnection) {
  auto* worker = new TickWorker(&journal_, 2, 1);
  const QPointer<WorkerThread> run = new WorkerThread(worker);
  QObject::connect(run, &QThread::started, worker, &TickWorker::Process);
  QObject::connect(worker, &TickWorker::Finished, worker, &QObject::deleteLater, Qt::DirectConnection);
  run->Start();
  ASSERT_TRUE(RunUntil([] { return live_workers == 0; }));
  run->quit();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "process, tick, tick, deleted");
}

TEST_P(WorkerRun, DeletesAWorkerThatDoesNotDoItItself) {
  auto* worker = new TickWorker(&journal_, 2, 1);
  const QPointer<WorkerThread> run = new WorkerThread(worker);
  QObject::connect(run, &QThread::started, worker, &TickWorker::Process);
  QObject::connect(worker, &TickWorker::Finished, run, &WorkerThread::quit, Qt::QueuedConnection);
  int live_at_finish = -1;
  QObject::connect(run, &QThread::finished, &owner_, [&live_at_finish] { live_at_finish = live_workers; });
  run->Start();
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(live_at_finish, 0);
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
  // The worker is held in one of its slots. Behind that wait requests and the ticks of a timer that has long been due;
  // an event loop that is told to exit would still deliver them.
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
  // The quit that the worker asks for waits on the main thread until we look.
  while (journal_.Count(QStringLiteral("request")) == 0) Clock::Sleep(1);
  ASSERT_TRUE(RunUntilGone(run));
  EXPECT_EQ(journal_.Take(), "process, unblocked, finish, request, deleted");
}

TEST_P(RealRun, EndsWhereTheSystemHasNoThreadToGive) {
  const QPointer<WorkerThread> run = owner_.StartRun(kEndless);
  run->setStackSize(1);  // less than any thread needs: it is refused
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

TEST_P(VirtualRun, TicksAtItsTimesDuringABlockingSleep) {
  owner_.StartRun(kEndless, 10);
  program_.time()->Settle();
  Clock::Sleep(35);
  EXPECT_EQ(journal_.Take(), "process, tick, tick, tick");
  EXPECT_EQ(owner_.ticks, 0);
  program_.time()->Settle();
  EXPECT_EQ(owner_.ticks, 3);
}

// A program that returns from its main function with gestures under way, in every state that a run can be in.
class LeavingMain : public testing::TestWithParam<Mode> {
 protected:
  LeavingMain() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  // Ends the process: 0 when all was well.
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

  // A second application in the same process is looked after like the first.
  [[noreturn]] static void LeaveTwice(Mode mode) {
    for (int i = 0; i < 2; ++i) {
      Owner owner(nullptr);
      Program program(mode);
      owner.StartRun(kEndless, 0);
      if (!program.RunUntil([&owner] { return owner.ticks > 10; })) std::exit(1);
    }
    std::exit(live_workers == 0 ? 0 : 2);
  }

  // A worker that does not come back holds the end up only for a while.
  [[noreturn]] static void LeaveWithAStuckWorker() {
    WorkerThread* run = nullptr;
    {
      Program program(Mode::kReal);
      auto* worker = new TickWorker(nullptr, kEndless, 0);
      run = new WorkerThread(worker);
      QObject::connect(run, &QThread::started, worker, &TickWorker::Block);
      run->Start();
      if (!program.RunUntil([] { return entered.tryAcquire(); })) std::exit(1);
    }
    const bool was_left_alone = live_workers == 1 && run->isRunning();
    leave.release();
    run->wait();
    std::exit(was_left_alone && live_workers == 0 ? 0 : 2);
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

#include "worker_thread_test.moc"
