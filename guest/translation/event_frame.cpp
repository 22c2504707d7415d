#include "guest/translation/event_frame.h"

#include <linux/input.h>
#include <utility>

namespace taviguest {

EventFrame& EventFrame::Axis(int code, int value) { return Add(EV_ABS, code, value); }

EventFrame& EventFrame::Turn(int code, int steps) { return steps != 0 ? Add(EV_REL, code, steps) : *this; }

EventFrame& EventFrame::Key(int code, bool down) { return Add(EV_KEY, code, down ? 1 : 0); }

KernelEvents EventFrame::Close() {
  if (!events_.empty()) Add(EV_SYN, SYN_REPORT, 0);
  return std::exchange(events_, {});
}

EventFrame& EventFrame::Add(int type, int code, int value) {
  events_.push_back({device_, type, code, value});
  return *this;
}

}  // namespace taviguest
