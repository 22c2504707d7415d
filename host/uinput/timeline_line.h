// Lines of a timeline, as `tavi simulate` prints it.
#ifndef HOST_UINPUT_TIMELINE_LINE_H_
#define HOST_UINPUT_TIMELINE_LINE_H_

#include <optional>

#include "host/uinput/guest_stream.h"

namespace tavi {

struct TimedLine {
  int ms = 0;            // since the timeline's start
  bool is_call = false;  // of the host, which the guest does not see
  SentLine sent;         // of the guest
};

// Nothing for a line that does not start with its time.
std::optional<TimedLine> ReadTimelineLine(const QString& line);

}  // namespace tavi

#endif  // HOST_UINPUT_TIMELINE_LINE_H_
