// The state of a target, for display.
#ifndef HOST_TARGET_TARGET_STATUS_H_
#define HOST_TARGET_TARGET_STATUS_H_

#include <QString>

namespace tavi {

struct TargetStatus {
  enum class State {
    kOff,         // switched off; it gets nothing until it is switched on
    kConnecting,  // tried for the first time, or again
    kConnected,   // it gets the lines
    kLagging,     // it read too slowly for too long: it gets nothing until it has read all that is queued
    kFailed,      // it could not be reached; retried after a delay
    kEnded,       // it was connected and disconnected; retried after a delay
  };

  QString name;  // the target as the user wrote it, such as "unix:/run/guest"
  State state = State::kConnecting;
  QString reason;            // why, for kFailed and kEnded
  int retry_ms = 0;          // for kFailed and kEnded: time until the next attempt; 0 otherwise
  int lines_per_second = 0;  // sent in the last whole second
  int waiting_bytes = 0;     // queued
};

// "connected, 38 lines/s", "connected, 0 lines/s, 512 bytes queued", "refused the connection; next try in 4 s".
QString DescribeStatus(const TargetStatus& status);

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_STATUS_H_
