// Collects the events of one device at one moment.
#ifndef GUEST_TRANSLATION_EVENT_FRAME_H_
#define GUEST_TRANSLATION_EVENT_FRAME_H_

#include "guest/translation/kernel_event.h"

namespace taviguest {

class EventFrame {
 public:
  explicit EventFrame(KernelDevice device) : device_(device) { events_.reserve(kUsualEvents); }

  EventFrame& Axis(int code, int value);
  EventFrame& Turn(int code, int steps);  // a relative axis; 0 steps are no event
  EventFrame& Key(int code, bool down);

  // The frame with its final report; empty if nothing happened. The next frame begins.
  KernelEvents Close();

 private:
  static constexpr size_t kUsualEvents = 8;  // the events of a contact, the touch button and the report

  EventFrame& Add(int type, int code, int value);

  const KernelDevice device_;
  KernelEvents events_;
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_EVENT_FRAME_H_
