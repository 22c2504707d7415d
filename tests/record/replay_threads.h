// Replays on real threads in real time, and a host that may be called on any of them.
#ifndef TESTS_RECORD_REPLAY_THREADS_H_
#define TESTS_RECORD_REPLAY_THREADS_H_

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <utility>

#include <QDateTime>
#include <QGuiApplication>
#include <QThread>
#include <QVector>

#include "host/simulation/simulated_host.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/replay_file.h"
#include "tests/support/count_threads.h"
#include "tests/support/run_until.h"

namespace taviinputmanager {
namespace replay_threads {

// The calls of the host's functions.
struct Told {
  QString what;  // a line without its end, or the name of a callback
  int task_id = 0;
  QString more;
  Qt::HANDLE thread = nullptr;
  qint64 ms = 0;
};

// Written on any thread.
class Ear {
 public:
  using Reaction = std::function<void(const Told&)>;

  void Hear(const QString& what, int task_id = 0, const QString& more = {}) {
    const Told told{what, task_id, more, QThread::currentThreadId(), QDateTime::currentMSecsSinceEpoch()};
    const Reaction reaction = Note(told);
    if (reaction) reaction(told);
  }
  QVector<Told> Take() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(told_, {});
  }
  // What the host does inside a send function or a callback, on the thread of the call.
  void React(Reaction reaction) {
    const std::lock_guard<std::mutex> lock(mutex_);
    reaction_ = std::move(reaction);
  }

 private:
  Reaction Note(const Told& told) {
    const std::lock_guard<std::mutex> lock(mutex_);
    told_.append(told);
    return reaction_;
  }

  std::mutex mutex_;
  QVector<Told> told_;
  Reaction reaction_;
};

inline Ear& TheEar() {
  static Ear ear;
  return ear;
}

// An application in real time, with the host's tables. Ends all replays when it is destroyed.
class Program {
 public:
  Program() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_);
    Host().table.OnInputStatusChanged = [](int status, const QString&) { TheEar().Hear("status", status); };
    Host().Start([] { return QDateTime::currentMSecsSinceEpoch(); });
    // The simulated host's own functions are for the main thread only.
    SetInputEventSendFunc(reinterpret_cast<void*>(&HearLine));
    SetInputTextSendFunc(reinterpret_cast<void*>(&HearLine));
    table_.started = [](int id, const QString& file) { TheEar().Hear("started", id, file); };
    table_.paused = [](int id, const QString& file) { TheEar().Hear("paused", id, file); };
    table_.resumed = [](int id, const QString& file) { TheEar().Hear("resumed", id, file); };
    table_.stopped = [](int id, const QString& file) { TheEar().Hear("stopped", id, file); };
    table_.finished = [](int id, const QString& file, ReplayParam) { TheEar().Hear("finished", id, file); };
    table_.vcontrol = [](const QString& data, const QString&, const QString&, int id, const QString&) {
      TheEar().Hear("vcontrol", id, data);
    };
    InitializeReplayCallbacks(&table_);
    UpdateDisplayId(1);
    UpdateReplayDisplayId(2);
    TheEar().Take();
  }
  ~Program() { TheEar().React({}); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  static tavi::SimulatedHost& Host() { return *tavi::SimulatedHost::GetInstance(); }

  // Lets time pass until `condition` holds; false if that takes unreasonably long.
  bool RunUntil(const std::function<bool()>& condition) {
    return RunEventsUntil([&] {
      told += TheEar().Take();
      return condition();
    });
  }
  bool RunUntilTold(const QString& what, int count = 1) {
    return RunUntil([&] { return Count(what) >= count; });
  }

  int Count(const QString& what) const {
    int count = 0;
    for (const Told& entry : std::as_const(told)) count += entry.what == what;
    return count;
  }
  QVector<Told> Of(const QString& what) const {
    QVector<Told> found;
    for (const Told& entry : told) {
      if (entry.what.startsWith(what)) found.append(entry);
    }
    return found;
  }

  QVector<Told> told;  // all of it

 private:
  static void HearLine(const char* data, int length) { TheEar().Hear(QString::fromUtf8(data, length - 1)); }

  InputReplayerCallbacks table_;
  int argument_count_ = 1;
  char program_name_[15] = "replay_threads";
  char* arguments_[2] = {program_name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace replay_threads
}  // namespace taviinputmanager

#endif  // TESTS_RECORD_REPLAY_THREADS_H_
