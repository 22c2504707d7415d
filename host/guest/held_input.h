// What a guest has down, on all of its displays, and the lines that lift it.
#ifndef HOST_GUEST_HELD_INPUT_H_
#define HOST_GUEST_HELD_INPUT_H_

#include <map>

#include <QStringList>

#include "host/guest/guest_model.h"

namespace tavi {

// The event lines, without display and end, that lift what is down in `state` and centre its gamepad; in ascending
// order of slots and codes.
QStringList LiftLines(const GuestState& state);

// Not bound to a thread.
class HeldInput {
 public:
  // An event line that is sent to `display`.
  void Take(int display, const GuestLine& line);

  // Nothing is down on a display that was not heard of.
  const GuestState& StateOf(int display) const;
  // By display.
  const std::map<int, GuestModel>& Displays() const { return displays_; }

 private:
  std::map<int, GuestModel> displays_;
};

}  // namespace tavi

#endif  // HOST_GUEST_HELD_INPUT_H_
