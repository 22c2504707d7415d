// A guest inside a program: takes lines and plays them on input devices of this machine's kernel.
//
//   UinputGuest guest(options);
//   if (const std::string error = guest.Open(); !error.empty()) return Fail(error);
//   ...
//   if (const std::string problem = guest.TakeLine(line); !problem.empty()) Tell(problem);
//   ...
//   guest.LiftAll();
#ifndef GUEST_UINPUT_GUEST_H_
#define GUEST_UINPUT_GUEST_H_

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "guest/device/device_place.h"
#include "guest/line/guest_options.h"

namespace taviguest {

// Threads: none of its own, and not bound to one; calls may not overlap. Standard output and error are left alone.
//
// A keeper, a small process of its own, holds the devices too. However this process ends, also by SIGKILL, the keeper
// lifts what is down, lets readers see it, and only then do the devices go. It holds no other descriptor of this
// process, ignores every signal that can be ignored, and ends when the object does. The process that forks it may have
// threads.
class UinputGuest {
 public:
  explicit UinputGuest(const GuestOptions& options);
  UinputGuest(const UinputGuest&) = delete;
  UinputGuest& operator=(const UinputGuest&) = delete;
  // Lifts what is down and removes the devices; takes a tenth of a second, so that readers see the lift.
  ~UinputGuest();

  // Creates the devices, and returns 0.3 s later: readers need that long to find them, and events before that are lost.
  // Returns the error, for display; empty if the devices exist. Must be called once, before anything else.
  std::string Open();

  // The existing devices: screen, keyboard and pointer after Open; gamepad and touchpad if `options` ask for them, or
  // after the first line that needs one.
  std::vector<DevicePlace> Places() const;

  // Plays a line as a host's send functions get it, with its newline or NUL at the end or without: an event line with
  // its display prefix, or a text line. Each report of a device is one write(). Returns what could not be played, for
  // display; empty if everything was, and if the line is for another display than `options.display`.
  //
  // Does not block, except on the first line for a gamepad or touchpad that `options` did not ask for: this creates the
  // device and takes the 0.3 s of Open.
  std::string TakeLine(std::string_view line);

  // Lifts all fingers, keys and buttons that are down and centres sticks, triggers and hat, of all displays. Sends
  // nothing for what is up already. Returns the kernel's error, for display, or an empty string.
  std::string LiftAll();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace taviguest

#endif  // GUEST_UINPUT_GUEST_H_
