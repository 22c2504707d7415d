#ifndef HOST_TARGET_TARGET_GESTURES_H_
#define HOST_TARGET_TARGET_GESTURES_H_

#include <QByteArray>
#include <QVector>

#include "host/guest/held_input.h"
#include "host/target/outgoing_line.h"

namespace tavi {

// What one target has down, as far as it was told, and so which lines it can make sense of.
//
// Not bound to a thread.
class TargetGestures {
 public:
  // What is to be told of a line, end included: without the fingers that are down already (`before` the line, in the
  // host) and whose press the target never got; empty when nothing is left of it. A release is always told.
  QByteArray Tell(const OutgoingLine& sent, const HeldInput& before);

  // The lines, end included, that lift what the target has down. From then on it has nothing down.
  QVector<QByteArray> Lift();

  // The same for a target of which nobody knows what it missed: lifts all that it was ever told of.
  QVector<QByteArray> LiftEverything();

 private:
  HeldInput down_;
  HeldInput ever_;  // all that was down once, as if it was never lifted
};

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_GESTURES_H_
