// How a target is, for whoever shows it.
#ifndef HOST_TARGET_TARGET_STATUS_H_
#define HOST_TARGET_TARGET_STATUS_H_

#include <QString>

namespace tavi {

struct TargetStatus {
  enum class State {
    kOff,         // switched off; it gets nothing until it is switched on
    kConnecting,  // tried for the first time, or again
    kConnected,   // it gets the lines
    kLagging,     // it took too little for too long: it gets nothing until it has taken all that waits
    kFailed,      // it could not be reached; tried again after a pause
    kEnded,       // it was connected and went away; tried again after a pause
  };

  QString name;  // the target as it was written, such as "unix:/run/guest"
  State state = State::kConnecting;
  QString reason;            // why, for kFailed and kEnded
  int retry_ms = 0;          // for kFailed and kEnded: until it is tried again; 0 otherwise
  int lines_per_second = 0;  // handed over in the last whole second
  int waiting_bytes = 0;     // handed to nobody yet
};

// "connected, 38 lines/s", "connected, 0 lines/s, 512 bytes wait", "refused the connection; next try in 4 s".
QString DescribeStatus(const TargetStatus& status);

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_STATUS_H_
