// The reports of a kernel device, without the kernel, so that tests can create them too.
#ifndef HOST_PLAY_INPUT_FRAME_H_
#define HOST_PLAY_INPUT_FRAME_H_

#include <vector>

namespace tavi {

// An event as in linux/input.h, without its time.
struct DeviceEvent {
  int type;  // EV_...
  int code;
  int value;
};

// Everything that happened at one moment: the events before a SYN_REPORT, which is not included.
using InputFrame = std::vector<DeviceEvent>;

}  // namespace tavi

#endif  // HOST_PLAY_INPUT_FRAME_H_
