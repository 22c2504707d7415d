// Gathers what happens to one device at one moment.
#ifndef HOST_UINPUT_EVENT_FRAME_H_
#define HOST_UINPUT_EVENT_FRAME_H_

#include "host/uinput/kernel_event.h"

namespace tavi {

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

}  // namespace tavi

#endif  // HOST_UINPUT_EVENT_FRAME_H_
