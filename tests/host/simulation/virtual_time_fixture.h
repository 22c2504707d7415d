// An application on virtual time, and a log of its events with their times.
#ifndef TESTS_HOST_SIMULATION_VIRTUAL_TIME_FIXTURE_H_
#define TESTS_HOST_SIMULATION_VIRTUAL_TIME_FIXTURE_H_

#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QCoreApplication>
#include <QTimer>
#include <QVariant>

#include "host/simulation/virtual_event_dispatcher.h"

namespace tavi {

class VirtualTimeFixture : public testing::Test {
 protected:
  VirtualTimeFixture() : time_(new VirtualEventDispatcher) {
    QCoreApplication::setEventDispatcher(time_);
    application_ = std::make_unique<QCoreApplication>(argument_count_, arguments_);
  }

  // Milliseconds since the test began.
  qint64 Now() const { return time_->NowMs() - VirtualEventDispatcher::kDefaultStartMs; }
  void Log(const QString& what) { log_ += QStringLiteral("%1ms %2").arg(Now()).arg(what); }
  std::string TakeLog() { return std::exchange(log_, {}).join(QStringLiteral(", ")).toStdString(); }

  // A running timer that logs `name` at each timeout and then calls `then`.
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

  VirtualEventDispatcher* time_;  // owned by the application
  int argument_count_ = 1;
  char program_name_[13] = "virtual_time";
  char* arguments_[2] = {program_name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
  QStringList log_;
};

}  // namespace tavi

#endif  // TESTS_HOST_SIMULATION_VIRTUAL_TIME_FIXTURE_H_
