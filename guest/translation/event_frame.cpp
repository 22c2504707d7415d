#include "guest/translation/event_frame.h"

#include <linux/input.h>

namespace taviguest {

EventFrame& EventFrame::Axis(int code, int value) { return Add(EV_ABS, code, value); }

EventFrame& EventFrame::Turn(int code, int steps) { return steps != 0 ? Add(EV_REL, code, steps) : *this; }

EventFrame& EventFrame::Key(int code, bool down) { return Add(EV_KEY, code, down ? 1 : 0); }

KernelEvents EventFrame::Close() const {
  if (events_.empty()) return {};
  KernelEvents closed = events_;
  closed.push_back({device_, EV_SYN, SYN_REPORT, 0});
  return closed;
}

EventFrame& EventFrame::Add(int type, int code, int value) {
  events_.push_back({device_, type, code, value});
  return *this;
}

}  // namespace taviguest
