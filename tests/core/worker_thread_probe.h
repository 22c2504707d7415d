// A worker that logs what happens to it, an owner that runs it, and a program for them with real or virtual time.
#ifndef TESTS_CORE_WORKER_THREAD_PROBE_H_
#define TESTS_CORE_WORKER_THREAD_PROBE_H_

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

#include "core/clock.h"
#include "core/worker_thread.h"
#include "host/simulation/virtual_event_dispatcher.h"

namespace taviinputmanager {

namespace probe {

// The log of workers, from any thread.
class Journal {
 public:
  // Takes the lock again, so that ThreadSanitizer, which does not see how Qt waits for a thread, knows that the last
  // line was written.
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

inline std::atomic<int> live_workers{0};

// Where a worker reports that it is in its slot, and waits to be released.
inline QSemaphore entered;
inline QSemaphore leave;

// Ticks `ticks` times, every `interval_ms`, then signals that it has finished, again at each further tick.
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

  Journal* journal_;  // null: not read
  int ticks_;
  int interval_ms_;
  int count_ = 0;
  std::atomic<QThread*> process_thread_{nullptr};
};

constexpr int kEndless = 1000000000;

// The owner of the worker: a simulator, for example.
class Owner : public QObject {
  Q_OBJECT

 public:
  explicit Owner(Journal* journal) : journal_(journal) {}

  // A run that the worker's own signal ends.
  WorkerThread* StartRun(int ticks, int interval_ms = 1) {
    WorkerThread* run = MakeRun(ticks, interval_ms);
    run->Start();
    return run;
  }
  // The same, but not started yet.
  WorkerThread* MakeRun(int ticks, int interval_ms = 1) {
    auto* worker = new TickWorker(journal_, ticks, interval_ms);
    auto* run = new WorkerThread(worker);
    connect(run, &WorkerThread::started, worker, &TickWorker::Process);
    connect(this, &Owner::Request, worker, &TickWorker::Request, Qt::QueuedConnection);
    connect(this, &Owner::Block, worker, &TickWorker::Block, Qt::QueuedConnection);
    connect(this, &Owner::Stop, worker, &TickWorker::Finish, Qt::QueuedConnection);
    connect(worker, &TickWorker::Ticked, this, &Owner::OnTicked, Qt::QueuedConnection);
    connect(worker, &TickWorker::Finished, run, &WorkerThread::quit, Qt::QueuedConnection);
    run->DeleteWorkerOn(worker, &TickWorker::Finished);
    connect(run, &QThread::finished, this, [this] {
      ++finished_runs;
      Q_EMIT Ended();
    });
    return run;
  }

  // A run that its owner ends in a call posted to the run, followed by `repeats` other runs. With `quit_at_once` the
  // signal also quits the run, before that call.
  void StartRepeatingRun(int repeats, bool quit_at_once) {
    auto* worker = new TickWorker(journal_, 2, 1);
    auto* run = new WorkerThread(worker);
    connect(run, &WorkerThread::started, worker, &TickWorker::Process);
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
  // A run has finished.
  void Ended();

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

// An application with real or virtual time.
class Program {
 public:
  explicit Program(Mode mode) {
    if (mode == Mode::kVirtual) {
      time_ = new tavi::VirtualEventDispatcher;
      QCoreApplication::setEventDispatcher(time_);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_);
    Clock::FindVirtualTime();
  }

  // Lets time pass until `condition` holds; false if that takes unreasonably long.
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
  // Everything posted to the main thread so far is delivered, and everything that this posts.
  void DeliverPosted() {
    if (time_) return time_->Settle();
    for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  tavi::VirtualEventDispatcher* time() { return time_; }

 private:
  tavi::VirtualEventDispatcher* time_ = nullptr;  // owned by the application
  int argument_count_ = 1;
  char program_name_[12] = "worker_test";
  char* arguments_[2] = {program_name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

inline std::string ModeName(const testing::TestParamInfo<Mode>& info) {
  return info.param == Mode::kReal ? "Real" : "Virtual";
}

}  // namespace probe

}  // namespace taviinputmanager

#endif  // TESTS_CORE_WORKER_THREAD_PROBE_H_
