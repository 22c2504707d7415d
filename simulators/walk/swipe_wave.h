// The small motion of a walk's finger after it has reached its target, for games that watch for motion.
#ifndef SIMULATORS_WALK_SWIPE_WAVE_H_
#define SIMULATORS_WALK_SWIPE_WAVE_H_

#include <optional>

#include <QPoint>
#include <QPointF>

namespace tavikeymapmanager {
struct SwipeholdConfigItem;
}

namespace taviinputmanager {

// Computes positions and keeps no time. One round takes, with N = compensate_steps:
//
// - 2N - 1 ticks towards the stick's centre and back, unless both curves are named: from wave_point inwards, by
//   compensate_amplitude of its distance, in equal steps; the turning point is used once, and so is each end;
// - N ticks along the two curves, turned to the direction of the stick, with their zero at wave_point.
class SwipeWave {
 public:
  // From the first tick of the first round. `wave_point`, in pixels, is where the finger rests.
  void Start(const QPoint& wave_point);
  // Back to the first tick of the first round.
  void Rewind();

  // Does one tick: where the finger goes, in pixels. Nothing where the item's numbers say no place.
  std::optional<QPointF> Tick(const tavikeymapmanager::SwipeholdConfigItem& item, const QPoint& center, int radius);
  // Rounds that are through.
  int GetRound() const { return wave_round_; }

 private:
  // How much of the way from the centre the finger keeps.
  std::optional<double> TickRadially(const tavikeymapmanager::SwipeholdConfigItem& item);
  // Where the finger goes from `wave_point`.
  QPointF TickAlongCurves(const tavikeymapmanager::SwipeholdConfigItem& item, const QPoint& center, int radius);
  void EndRound();

  QPoint wave_point_;
  int wave_step_ = 0;
  int wave_round_ = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_SWIPE_WAVE_H_
