// The target of a cast that is aimed at a point on the ground, in a game with a perspective view.
#ifndef SIMULATORS_CAST_GROUND_PROJECTION_H_
#define SIMULATORS_CAST_GROUND_PROJECTION_H_

#include <optional>

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>

namespace tavikeymapmanager {
struct SpellConfigItem;
}

namespace taviinputmanager {

// The view of the ground plane, from an item's view matrix. Immutable; any thread.
//
// A point has three forms: display pixels; normalized, from -1 to 1 with y upwards; and on the ground, in the units of
// the game.
class GroundView {
 public:
  // `text` contains 16 numbers separated by commas, in column-major order. Nothing if there are not exactly 16 parts; a
  // part that is not a number reads as 0.
  static std::optional<GroundView> Parse(const QString& text);

  // The ground point of a normalized one; (0, 0) if the line of sight does not meet the ground in exactly one point.
  QPointF Solve(const QPointF& normalised) const;

 private:
  double m_[16] = {};  // row-major
};

// Converts display pixels to normalized coordinates.
QPointF Normalise(const QPoint& point, const QSize& display);

// The target around `button` that casts to the ground point at `pointer`; all in display pixels. (0, 0) if the item has
// no view or the result is undefined.
QPoint ProjectOnGround(const tavikeymapmanager::SpellConfigItem& item, const QPoint& pointer, const QPoint& button,
                       const QSize& display);

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_GROUND_PROJECTION_H_
