// Lines of a timeline, in the format of `tavi simulate`.
#ifndef GUEST_LINE_TIMELINE_LINE_H_
#define GUEST_LINE_TIMELINE_LINE_H_

#include <optional>
#include <string_view>

#include "guest/line/guest_stream.h"

namespace taviguest {

struct TimedLine {
  int ms = 0;            // since the timeline's start
  bool is_call = false;  // a host callback, which the guest does not get
  SentLine sent;         // a line for the guest
};

// Nothing for a line that does not start with its time.
std::optional<TimedLine> ReadTimelineLine(std::string_view line);

}  // namespace taviguest

#endif  // GUEST_LINE_TIMELINE_LINE_H_
