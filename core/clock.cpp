#include "core/clock.h"

#include <atomic>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QCursor>
#include <QDateTime>
#include <QThread>
#include <QTimeZone>

#include "taviinputmanager/virtual_time.h"

namespace taviinputmanager {

namespace {

// Null in real time. Not owned.
std::atomic<VirtualTime*> virtual_time{nullptr};

}  // namespace

void Clock::FindVirtualTime() {
  const QCoreApplication* app = QCoreApplication::instance();
  QAbstractEventDispatcher* dispatcher = app ? QAbstractEventDispatcher::instance(app->thread()) : nullptr;
  VirtualTime* found = qobject_cast<VirtualTime*>(dispatcher);
  if (virtual_time.exchange(found) == found || !found) return;  // a valid, watched pointer or null
  QObject::connect(dispatcher, &QObject::destroyed, [found] {
    VirtualTime* gone = found;
    virtual_time.compare_exchange_strong(gone, nullptr);  // keeps one that was found since
  });
}

bool Clock::IsVirtual() { return virtual_time.load() != nullptr; }

qint64 Clock::NowMs() {
  const VirtualTime* time = virtual_time.load();
  return time ? time->NowMs() : QDateTime::currentMSecsSinceEpoch();
}

QTime Clock::TimeOfDay() {
  const VirtualTime* time = virtual_time.load();
  return time ? QDateTime::fromMSecsSinceEpoch(time->NowMs(), QTimeZone::utc()).time() : QTime::currentTime();
}

void Clock::Sleep(int ms) {
  if (ms <= 0) return;
  VirtualTime* time = virtual_time.load();
  if (time) {
    time->Sleep(static_cast<unsigned long>(ms));
  } else {
    QThread::msleep(static_cast<unsigned long>(ms));
  }
}

QPoint Clock::Pointer() {
  const VirtualTime* time = virtual_time.load();
  return time ? time->Pointer() : QCursor::pos();
}

}  // namespace taviinputmanager
