// Gathers what happens to one device at one moment.
#ifndef GUEST_TRANSLATION_EVENT_FRAME_H_
#define GUEST_TRANSLATION_EVENT_FRAME_H_

#include "guest/translation/kernel_event.h"

namespace taviguest {

class EventFrame {
 public:
  explicit EventFrame(KernelDevice device) : device_(device) {}

  EventFrame& Axis(int code, int value);
  EventFrame& Turn(int code, int steps);  // a relative axis; no steps are no event
  EventFrame& Key(int code, bool down);

  // With the report that ends a frame; nothing for a frame in which nothing happened.
  KernelEvents Close() const;

 private:
  EventFrame& Add(int type, int code, int value);

  const KernelDevice device_;
  KernelEvents events_;
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_EVENT_FRAME_H_
