#include "host/play/epoll_dispatcher.h"

#include <cerrno>
#include <chrono>
#include <iterator>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

#include <QCoreApplication>
#include <QSocketNotifier>

namespace tavi {

namespace {

using Microseconds = std::chrono::microseconds;

constexpr qint64 kTicksOfMs = 1000;  // the clock's ticks are microseconds
constexpr qint64 kTicksOfSecond = 1'000'000;
constexpr qint64 kNanosecondsOfTick = 1000;
constexpr int kMostAtOnce = 16;  // files; the next call returns the others

// The events of each QSocketNotifier::Type. All types get the end of a file and its errors.
constexpr std::uint32_t kAsked[] = {EPOLLIN, EPOLLOUT, EPOLLPRI};
constexpr std::uint32_t kAlwaysReported = EPOLLHUP | EPOLLERR;

}  // namespace

EpollDispatcher::EpollDispatcher()
    : TimedDispatcher(kTicksOfMs),
      epoll_(::epoll_create1(EPOLL_CLOEXEC)),
      waking_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      alarm_(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)) {
  if (epoll_ < 0 || waking_ < 0 || alarm_ < 0) qFatal("no event loop: %s", qPrintable(qt_error_string(errno)));
  Watch(waking_, EPOLLIN);
  Watch(alarm_, EPOLLIN);
}

EpollDispatcher::~EpollDispatcher() {
  for (const int file : {alarm_, waking_, epoll_}) ::close(file);
}

// The alarm's clock.
qint64 EpollDispatcher::Now() const {
  return std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

bool EpollDispatcher::processEvents(QEventLoop::ProcessEventsFlags flags) {
  is_interrupted_ = false;
  Q_EMIT awake();
  QCoreApplication::sendPostedEvents();
  if (is_interrupted_) return false;
  const bool waits = flags.testFlag(QEventLoop::WaitForMoreEvents);
  if (waits) Q_EMIT aboutToBlock();
  SetAlarm();
  const bool is_any_served = ServeFiles(waits);
  return FireTimers() || is_any_served;
}

// ---- Files

void EpollDispatcher::registerSocketNotifier(QSocketNotifier* notifier) {
  const int file = static_cast<int>(notifier->socket());
  notifiers_[file][notifier->type()] = notifier;
  Watch(file, EventsOf(notifiers_[file]));
}

void EpollDispatcher::unregisterSocketNotifier(QSocketNotifier* notifier) {
  const int file = static_cast<int>(notifier->socket());
  const auto found = notifiers_.find(file);
  if (found == notifiers_.end() || found->second[notifier->type()] != notifier) return;
  found->second[notifier->type()] = nullptr;
  const std::uint32_t events = EventsOf(found->second);
  if (events == 0) notifiers_.erase(found);
  Watch(file, events);
}

std::uint32_t EpollDispatcher::EventsOf(const Notifiers& notifiers) {
  std::uint32_t events = 0;
  for (std::size_t type = 0; type < notifiers.size(); ++type) events |= notifiers[type] ? kAsked[type] : 0;
  return events;
}

// The kernel removes closed files from its list, so a file number in `notifiers_` may belong to a new file.
void EpollDispatcher::Watch(int file, std::uint32_t events) {
  epoll_event event{};
  event.events = events;
  event.data.fd = file;
  if (events == 0) {
    ::epoll_ctl(epoll_, EPOLL_CTL_DEL, file, nullptr);
    return;
  }
  if (::epoll_ctl(epoll_, EPOLL_CTL_MOD, file, &event) == 0) return;
  if (::epoll_ctl(epoll_, EPOLL_CTL_ADD, file, &event) == 0) return;
  qWarning("file %d cannot be waited for: %s", file, qPrintable(qt_error_string(errno)));
}

bool EpollDispatcher::ServeFiles(bool waits) {
  epoll_event ready[kMostAtOnce];
  const int count = ::epoll_wait(epoll_, ready, kMostAtOnce, waits ? -1 : 0);
  bool is_any_served = false;
  for (int i = 0; i < count; ++i) {
    const int file = ready[i].data.fd;
    if (file == alarm_) continue;  // the next timerfd_settime clears it
    is_any_served = true;
    if (file == waking_) {
      TakeWakeUp();
    } else {
      Serve(file, ready[i].events);
    }
  }
  return is_any_served;
}

// Events posted after this wake the loop again; those posted earlier are delivered in the next pass.
void EpollDispatcher::TakeWakeUp() {
  eventfd_t times = 0;
  ::eventfd_read(waking_, &times);
  is_woken_ = false;
}

// A handler may delete any notifier.
void EpollDispatcher::Serve(int file, std::uint32_t events) {
  for (std::size_t type = 0; type < std::size(kAsked); ++type) {
    if ((events & (kAsked[type] | kAlwaysReported)) == 0) continue;
    const auto found = notifiers_.find(file);
    if (found == notifiers_.end()) return;
    if (!found->second[type]) continue;
    QEvent event(QEvent::SockAct);
    QCoreApplication::sendEvent(found->second[type], &event);
  }
}

void EpollDispatcher::wakeUp() {
  if (!is_woken_.exchange(true)) ::eventfd_write(waking_, 1);
}

void EpollDispatcher::interrupt() {
  is_interrupted_ = true;
  wakeUp();
}

// ---- Timers

bool EpollDispatcher::FireTimers() {
  const quint64 order = NextOrder();
  const qint64 pass = Now();
  bool is_any_fired = false;
  while (Timer* timer = Earliest(pass, order, IsFree)) {
    is_any_fired = true;
    Fire(timer, pass);
  }
  return is_any_fired;
}

// A time of zero switches the alarm off.
void EpollDispatcher::SetAlarm() {
  const Timer* next = Earliest(kEver, NextOrder(), IsFree);
  const qint64 due = next ? next->due : 0;
  if (due == std::exchange(alarm_due_, due)) return;
  itimerspec alarm{};
  alarm.it_value.tv_sec = due / kTicksOfSecond;
  alarm.it_value.tv_nsec = due % kTicksOfSecond * kNanosecondsOfTick;
  ::timerfd_settime(alarm_, TFD_TIMER_ABSTIME, &alarm, nullptr);
}

}  // namespace tavi
