#ifndef HOST_TARGET_LINE_RATE_H_
#define HOST_TARGET_LINE_RATE_H_

#include <QtGlobal>

namespace tavi {

// The number of lines in the last whole second of a monotonic clock in milliseconds.
class LineRate {
 public:
  void Count(qint64 now_ms) {
    TurnTo(now_ms / kSecondMs);
    ++count_;
  }
  int PerSecond(qint64 now_ms) {
    TurnTo(now_ms / kSecondMs);
    return last_count_;
  }

 private:
  static constexpr qint64 kSecondMs = 1000;

  void TurnTo(qint64 second) {
    if (second == second_) return;
    last_count_ = second == second_ + 1 ? count_ : 0;
    count_ = 0;
    second_ = second;
  }

  qint64 second_ = 0;  // the second of `count_`
  int count_ = 0;
  int last_count_ = 0;  // the previous second's
};

}  // namespace tavi

#endif  // HOST_TARGET_LINE_RATE_H_
