// What a guest holds down, on all of its displays, and the lines that release it.
#ifndef HOST_GUEST_HELD_INPUT_H_
#define HOST_GUEST_HELD_INPUT_H_

#include <map>

#include <QStringList>

#include "host/guest/guest_model.h"

namespace tavi {

// The event lines, without display prefix and line end, that release what is down in `state` and centre its gamepad; in
// ascending order of slots and codes.
QStringList LiftLines(const GuestState& state);

// Not bound to a thread.
class HeldInput {
 public:
  // An event line that was sent to `display`.
  void Take(int display, const GuestLine& line);

  // Nothing is down on an unknown display.
  const GuestState& StateOf(int display) const;
  // By display.
  const std::map<int, GuestModel>& Displays() const { return displays_; }

 private:
  std::map<int, GuestModel> displays_;
};

}  // namespace tavi

#endif  // HOST_GUEST_HELD_INPUT_H_
