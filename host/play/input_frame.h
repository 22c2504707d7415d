// What a device of the kernel reports, without the kernel: so that tests can say it too.
#ifndef HOST_PLAY_INPUT_FRAME_H_
#define HOST_PLAY_INPUT_FRAME_H_

#include <vector>

namespace tavi {

// An event as linux/input.h has it, without its time.
struct DeviceEvent {
  int type;  // EV_...
  int code;
  int value;
};

// What happened at one moment: the events up to a SYN_REPORT, which is left out.
using InputFrame = std::vector<DeviceEvent>;

}  // namespace tavi

#endif  // HOST_PLAY_INPUT_FRAME_H_
