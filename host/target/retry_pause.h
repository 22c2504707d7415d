#ifndef HOST_TARGET_RETRY_PAUSE_H_
#define HOST_TARGET_RETRY_PAUSE_H_

#include <algorithm>

#include <QtGlobal>

namespace tavi {

// How long to wait before a target is retried: 1 s, doubled after each further failure, at most 30 s.
class RetryPause {
 public:
  int NextMs() {
    const int pause_ms = next_ms_;
    next_ms_ = std::min(2 * next_ms_, kLongestMs);
    return pause_ms;
  }
  // After a connection of `connected_ms`; a very short one counts as a failure.
  void TakeConnection(qint64 connected_ms) {
    if (connected_ms >= kSteadyMs) Reset();
  }
  void Reset() { next_ms_ = kFirstMs; }

 private:
  static constexpr int kFirstMs = 1000;
  static constexpr int kLongestMs = 30000;
  static constexpr int kSteadyMs = 10000;

  int next_ms_ = kFirstMs;
};

}  // namespace tavi

#endif  // HOST_TARGET_RETRY_PAUSE_H_
