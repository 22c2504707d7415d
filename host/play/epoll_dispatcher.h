#ifndef HOST_PLAY_EPOLL_DISPATCHER_H_
#define HOST_PLAY_EPOLL_DISPATCHER_H_

#include <array>
#include <atomic>
#include <cstdint>
#include <map>

#include "host/system/timed_dispatcher.h"

namespace tavi {

// The event dispatcher of `tavi play`. Its latency is lower than that of Qt's own, which passes all its files to poll()
// at each event; that costs more than the rest of Qt's part in a key's path. With epoll the kernel keeps the list of
// files, and returns only those that are ready.
//
// Install it before you create the application object, which then owns it. It does not support windows, and ignores
// QEventLoop::ExcludeSocketNotifiers and X11ExcludeTimers.
//
// Threads: the main thread; wakeUp and interrupt may be called on any thread.
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
  // The notifiers of one file, by QSocketNotifier::Type; may be null.
  using Notifiers = std::array<QSocketNotifier*, 3>;

  bool HasPosted() const override { return is_woken_; }
  qint64 Now() const override;
  // A nested event loop in a timer's handler does not wait for that timer.
  static bool IsFree(const Timer& timer) { return !timer.in_handler; }
  static std::uint32_t EventsOf(const Notifiers& notifiers);
  // Without events, removes the file.
  void Watch(int file, std::uint32_t events);
  bool ServeFiles(bool waits);
  void TakeWakeUp();
  void Serve(int file, std::uint32_t events);
  bool FireTimers();
  void SetAlarm();

  const int epoll_;
  const int waking_;  // an eventfd
  const int alarm_;   // a timerfd, set to the next timer
  qint64 alarm_due_ = 0;
  std::map<int, Notifiers> notifiers_;  // by file
  std::atomic<bool> is_woken_{false};
  std::atomic<bool> is_interrupted_{false};
};

}  // namespace tavi

#endif  // HOST_PLAY_EPOLL_DISPATCHER_H_
