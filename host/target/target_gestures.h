#ifndef HOST_TARGET_TARGET_GESTURES_H_
#define HOST_TARGET_TARGET_GESTURES_H_

#include <QByteArray>
#include <QVector>

#include "host/guest/held_input.h"
#include "host/target/outgoing_line.h"

namespace tavi {

// What one target holds down, according to the lines that it got, and so which lines make sense to it.
//
// Not bound to a thread.
class TargetGestures {
 public:
  // The part of a line, with its end, that the target should get: without the contacts that are down already (`before`
  // the line, in the host) and whose press the target never got; empty if nothing remains. Releases are always
  // included.
  QByteArray Tell(const OutgoingLine& sent, const HeldInput& before);

  // The lines, with their ends, that release what the target holds down. Afterwards nothing is down.
  QVector<QByteArray> Lift();

  // The same for a target that missed an unknown number of lines: releases everything that was ever pressed.
  QVector<QByteArray> LiftEverything();

 private:
  HeldInput down_;
  HeldInput ever_;  // everything that was ever down, as if it had never been released
};

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_GESTURES_H_
