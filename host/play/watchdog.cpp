#include "host/play/watchdog.h"

#include <chrono>
#include <utility>

namespace tavi {

Watchdog::Watchdog(int look_ms, int patience, std::function<void()> bite)
    : look_ms_(look_ms), patience_(patience), bite_(std::move(bite)) {
  QObject::connect(&pulse_, &QTimer::timeout, [this] { has_pulse_ = true; });
  pulse_.start(look_ms / 2);  // at least one falls between two checks
  thread_ = std::thread([this] { Watch(); });
}

Watchdog::~Watchdog() {
  {
    const std::lock_guard<std::mutex> lock(lock_);
    is_ending_ = true;
  }
  ending_.notify_one();
  thread_.join();
}

void Watchdog::Watch() {
  int still = 0;
  while (WaitForTheNextLook()) {
    still = has_pulse_.exchange(false) ? 0 : still + 1;
    if (still >= patience_) return bite_();
  }
}

bool Watchdog::WaitForTheNextLook() {
  std::unique_lock<std::mutex> lock(lock_);
  return !ending_.wait_for(lock, std::chrono::milliseconds(look_ms_), [this] { return is_ending_; });
}

}  // namespace tavi
