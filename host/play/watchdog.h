#ifndef HOST_PLAY_WATCHDOG_H_
#define HOST_PLAY_WATCHDOG_H_

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <QTimer>

namespace tavi {

// The last resort: an endless macro blocks the main thread, and with it the keyboard that could end it. If the event
// loop has not run for some time, `bite` is called, once, on a thread of its own.
//
// Time during which the whole process is stopped does not count. Main thread, except for Hurry.
class Watchdog {
 public:
  // Checks every `look_ms` milliseconds, and bites after `patience` successive checks without any activity.
  Watchdog(int look_ms, int patience, std::function<void()> bite);
  ~Watchdog();
  // From now on it bites after two checks, because someone is waiting for the end. Any thread.
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
  std::atomic<bool> has_pulse_{true};  // since the last check
  std::mutex lock_;
  std::condition_variable ending_;
  bool is_ending_ = false;  // guarded by lock_
  std::thread thread_;
};

}  // namespace tavi

#endif  // HOST_PLAY_WATCHDOG_H_
