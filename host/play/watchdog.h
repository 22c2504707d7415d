#ifndef HOST_PLAY_WATCHDOG_H_
#define HOST_PLAY_WATCHDOG_H_

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <QTimer>

namespace tavi {

// The last way out: a macro that goes on for ever keeps the main thread busy, and with it the keyboard that would end
// it. When the event loop has not run for some time, `bite` is called, once, on a thread of its own.
//
// Time that the whole process is stopped for does not count. Main thread, but for Hurry.
class Watchdog {
 public:
  // Looks every `look_ms` milliseconds, and bites after `patience` looks in a row at which nothing had happened.
  Watchdog(int look_ms, int patience, std::function<void()> bite);
  ~Watchdog();
  // From here on two looks are patience enough: somebody waits. Any thread.
  void Hurry() { patience_ = kHurriedPatience; }
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  static constexpr int kHurriedPatience = 2;

  void Watch();
  // False at the end.
  bool WaitForTheNextLook();

  const int look_ms_;
  std::atomic<int> patience_;
  const std::function<void()> bite_;
  QTimer pulse_;
  std::atomic<bool> has_pulse_{true};  // since the last look
  std::mutex lock_;
  std::condition_variable ending_;
  bool is_ending_ = false;  // guarded by lock_
  std::thread thread_;
};

}  // namespace tavi

#endif  // HOST_PLAY_WATCHDOG_H_
