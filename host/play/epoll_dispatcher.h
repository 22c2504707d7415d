#ifndef HOST_PLAY_EPOLL_DISPATCHER_H_
#define HOST_PLAY_EPOLL_DISPATCHER_H_

#include <array>
#include <atomic>
#include <cstdint>
#include <map>

#include "host/system/timed_dispatcher.h"

namespace tavi {

// The event dispatcher of a player: one that hears of a device's events soon. Qt's own asks the kernel about each of
// its files anew whenever one of them has something, which is longer than all that Qt itself does on a key's way. Here
// the kernel keeps the files, and tells the one.
//
// It is installed before the application object is made, which then owns it. Windows are not served, and
// QEventLoop::ExcludeSocketNotifiers and X11ExcludeTimers are not known.
//
// Threads: the main thread; wakeUp and interrupt may be called on any.
class EpollDispatcher : public TimedDispatcher {
 public:
  EpollDispatcher();
  ~EpollDispatcher() override;
  EpollDispatcher(const EpollDispatcher&) = delete;
  EpollDispatcher& operator=(const EpollDispatcher&) = delete;

  // QAbstractEventDispatcher.
  bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
  void registerSocketNotifier(QSocketNotifier* notifier) override;
  void unregisterSocketNotifier(QSocketNotifier* notifier) override;
  void wakeUp() override;
  void interrupt() override;

 private:
  // Those of one file, by QSocketNotifier::Type; null: none.
  using Notifiers = std::array<QSocketNotifier*, 3>;

  bool HasPosted() const override { return is_woken_; }
  qint64 Now() const override;
  // In an event loop inside of its own handler, a timer is not waited for.
  static bool IsFree(const Timer& timer) { return !timer.in_handler; }
  static std::uint32_t EventsOf(const Notifiers& notifiers);
  // Nothing to ask for: no more.
  void Watch(int file, std::uint32_t events);
  bool ServeFiles(bool waits);
  void TakeWakeUp();
  void Serve(int file, std::uint32_t events);
  bool FireTimers();
  void SetAlarm();

  const int epoll_;
  const int waking_;  // an eventfd
  const int alarm_;   // a timerfd, which wakes for the next timer
  qint64 alarm_due_ = 0;
  std::map<int, Notifiers> notifiers_;  // by file
  std::atomic<bool> is_woken_{false};
  std::atomic<bool> is_interrupted_{false};
};

}  // namespace tavi

#endif  // HOST_PLAY_EPOLL_DISPATCHER_H_
