// Lines of a timeline, as `tavi simulate` prints it.
#ifndef GUEST_LINE_TIMELINE_LINE_H_
#define GUEST_LINE_TIMELINE_LINE_H_

#include <optional>
#include <string_view>

#include "guest/line/guest_stream.h"

namespace taviguest {

struct TimedLine {
  int ms = 0;            // since the timeline's start
  bool is_call = false;  // of the host, which the guest does not see
  SentLine sent;         // of the guest
};

// Nothing for a line that does not start with its time.
std::optional<TimedLine> ReadTimelineLine(std::string_view line);

}  // namespace taviguest

#endif  // GUEST_LINE_TIMELINE_LINE_H_
