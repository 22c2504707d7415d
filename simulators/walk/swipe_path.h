// The plan of a walk's first slide, from the stick's centre to its target.
#ifndef SIMULATORS_WALK_SWIPE_PATH_H_
#define SIMULATORS_WALK_SWIPE_PATH_H_

#include <QPoint>
#include <QString>

namespace taviinputmanager {

// The movement on one axis in each step of a slide, in pixels. Steps are taken from the front.
//
// Stored as runs of equal steps, because a keymap may set any number of them:
//
//   head, head ... head | middle | tail, tail ... tail
//
// or, for an axis without movement that should tremble, +1, -1, +1, ...
class AxisSteps {
 public:
  // Plans `count` steps over `delta` pixels; fewer than one is an empty plan. `mode` is a walk's variable_mode.
  void Plan(int delta, int count, const QString& mode);
  void Clear();

  bool IsEmpty() const { return taken_ >= count_; }
  // The plan must not be empty.
  int TakeFirst();

 private:
  void PlanTravel(int delta, const QString& mode);

  int count_ = 0;
  int taken_ = 0;
  bool tremble_ = false;
  int head_ = 0;  // the number of its steps; one middle step follows, then the tail
  int head_step_ = 0;
  int middle_step_ = 0;
  int tail_step_ = 0;
};

// Positions are pixels. Rounding errors of the steps are not carried over: the caller jumps from the last step to the
// exact target.
struct SwipePath {
  QPoint start;
  QPoint current;
  QPoint target;
  QString mode;  // a variable_mode
  AxisSteps x_steps;
  AxisSteps y_steps;
  int remaining = 0;  // steps, including the final jump

  // Plans the remaining steps from `current` to `target`; none if the target is the start of the slide.
  void Rebuild();
  void Clear();

  bool HasStep() const { return remaining > 1 && !x_steps.IsEmpty() && !y_steps.IsEmpty(); }
  // Moves `current` by one step. There must be one.
  void TakeStep();
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_SWIPE_PATH_H_
