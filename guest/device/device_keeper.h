// A small process of its own that keeps devices open for a program, and lifts what is down on them when the program
// ends.
//
// When a program is killed, the kernel removes its devices, but some compositors never report to their clients that the
// fingers on them are gone. So they are lifted first, and the devices are removed once readers have seen it.
//
//   program        makes a device -- sends it ------- works ------------- killed, or ends the keeper
//   keeper    forked ------------------- holds it -------------------------------- lifts -- 100 ms -- ends
//   kernel                 device is there ------------------------------------------------------- takes it away
#ifndef GUEST_DEVICE_DEVICE_KEEPER_H_
#define GUEST_DEVICE_DEVICE_KEEPER_H_

#include <linux/input.h>
#include <string>
#include <sys/types.h>
#include <vector>

namespace taviguest {

// Not bound to a thread; the program may have threads. The keeper is a session of its own and reacts to no signal but
// SIGKILL; of the program's descriptors it has only those that are sent to it. If the keeper is killed, the program
// keeps its devices and continues without it.
class DeviceKeeper {
 public:
  DeviceKeeper() = default;
  DeviceKeeper(const DeviceKeeper&) = delete;
  DeviceKeeper& operator=(const DeviceKeeper&) = delete;
  // Has everything lifted, and waits until the keeper has exited.
  ~DeviceKeeper();

  // Returns the error, for display, or an empty string.
  std::string Start();

  // Gives the keeper another device, and the events that lift everything that may be down on it; at most
  // kMostRestEvents events and kMostDevices devices. Returns the error, for display, or an empty string.
  std::string Keep(int device, const std::vector<input_event>& rest) const;

  // Of the keeper's process; 0 before Start.
  pid_t process() const { return process_; }

  static constexpr size_t kMostRestEvents = 320;
  static constexpr size_t kMostDevices = 8;

 private:
  int socket_ = -1;
  pid_t process_ = 0;
};

}  // namespace taviguest

#endif  // GUEST_DEVICE_DEVICE_KEEPER_H_
