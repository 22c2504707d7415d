// A small process of its own that holds devices for a program, and lifts what is down on them when that program ends.
//
// When a program is killed the kernel takes its devices away, but some compositors never tell their clients that the
// fingers on them are gone. So they are lifted first, and the devices go when readers have seen it.
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

// Not bound to a thread; the program may have threads. The keeper is a session of its own and takes no signal but
// SIGKILL; of the program's descriptors it has those that it is sent. When the keeper is killed, the program keeps its
// devices, and goes on without one.
class DeviceKeeper {
 public:
  DeviceKeeper() = default;
  DeviceKeeper(const DeviceKeeper&) = delete;
  DeviceKeeper& operator=(const DeviceKeeper&) = delete;
  // Has everything lifted, and waits until the keeper is gone.
  ~DeviceKeeper();

  // What went wrong, for people, or nothing.
  std::string Start();

  // Gives it a device to hold, too, and what lifts all that may be down on it; at most kMostRestEvents, and at most
  // kMostDevices devices. What went wrong, for people, or nothing.
  std::string Keep(int device, const std::vector<input_event>& rest) const;

  // Of the process; 0 before Start.
  pid_t process() const { return process_; }

  static constexpr size_t kMostRestEvents = 320;
  static constexpr size_t kMostDevices = 8;

 private:
  int socket_ = -1;
  pid_t process_ = 0;
};

}  // namespace taviguest

#endif  // GUEST_DEVICE_DEVICE_KEEPER_H_
