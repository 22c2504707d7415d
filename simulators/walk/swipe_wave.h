// The small motion of a walk's contact after it has reached its target, for games that need motion.
#ifndef SIMULATORS_WALK_SWIPE_WAVE_H_
#define SIMULATORS_WALK_SWIPE_WAVE_H_

#include <optional>

#include <QPoint>
#include <QPointF>

namespace tavikeymapmanager {
struct SwipeholdConfigItem;
}

namespace taviinputmanager {

// Computes positions and keeps no time. With N = compensate_steps, one round takes:
//
// - 2N - 1 ticks towards the stick's centre and back, unless both curves are set: from wave_point inwards, by
//   compensate_amplitude of its distance, in equal steps; the turning point is used once, and so is each end;
// - N ticks along the two curves, rotated to the direction of the stick, with their zero at wave_point.
class SwipeWave {
 public:
  // Starts at the first tick of the first round. `wave_point`, in pixels, is where the contact rests.
  void Start(const QPoint& wave_point);
  // Back to the first tick of the first round.
  void Rewind();

  // One tick: returns the contact's new position, in pixels. Nothing if the item's numbers give no position.
  std::optional<QPointF> Tick(const tavikeymapmanager::SwipeholdConfigItem& item, const QPoint& center, int radius);
  // The number of completed rounds.
  int GetRound() const { return wave_round_; }

 private:
  // The contact's distance from the centre, relative to that of `wave_point`.
  std::optional<double> TickRadially(const tavikeymapmanager::SwipeholdConfigItem& item);
  // The contact's offset from `wave_point`.
  QPointF TickAlongCurves(const tavikeymapmanager::SwipeholdConfigItem& item, const QPoint& center, int radius);
  void EndRound();

  QPoint wave_point_;
  int wave_step_ = 0;
  int wave_round_ = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_SWIPE_WAVE_H_
