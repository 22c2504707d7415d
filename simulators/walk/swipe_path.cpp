#include "simulators/walk/swipe_path.h"

#include <cstdlib>

#include "core/numbers.h"
#include "keymap/keywords.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;

namespace {

constexpr double kHeadPart = 5.0;  // relative to the base speed: a slide with big steps starts with a fifth of it

}  // namespace

void AxisSteps::Clear() { *this = AxisSteps(); }

void AxisSteps::Plan(int delta, int count, const QString& mode) {
  Clear();
  if (count < 1) return;
  count_ = count;
  tremble_ = delta == 0 && mode.contains(keywords::kVariableSmall);
  if (delta != 0) PlanTravel(delta, mode);
}

void AxisSteps::PlanTravel(int delta, const QString& mode) {
  const int base = Round(static_cast<double>(delta) / count_);
  const int tail = count_ / 2;
  head_ = count_ - tail - 1;
  head_step_ = middle_step_ = tail_step_ = base;
  if (!mode.contains(keywords::kVariableBig)) return;
  head_step_ = Round(base / kHeadPart);
  const qint64 rest =
      std::abs(qint64{delta}) - std::abs(qint64{base}) * tail - std::abs(qint64{head_step_}) * qint64{head_};
  // Without a base speed the one big step goes backwards.
  middle_step_ = Truncate(static_cast<double>(base > 0 ? rest : -rest));
}

int AxisSteps::TakeFirst() {
  const int step = taken_++;
  if (tremble_) return step % 2 == 0 ? 1 : -1;
  if (step < head_) return head_step_;
  return step == head_ ? middle_step_ : tail_step_;
}

void SwipePath::Rebuild() {
  x_steps.Clear();
  y_steps.Clear();
  if (target == start) return;
  x_steps.Plan(SubtractSaturated(target.x(), current.x()), remaining, mode);
  y_steps.Plan(SubtractSaturated(target.y(), current.y()), remaining, mode);
}

void SwipePath::Clear() {
  x_steps.Clear();
  y_steps.Clear();
  remaining = 0;
}

void SwipePath::TakeStep() {
  current.ry() = AddSaturated(current.y(), y_steps.TakeFirst());
  current.rx() = AddSaturated(current.x(), x_steps.TakeFirst());
  --remaining;
}

}  // namespace taviinputmanager
