// Where a cast lands that is aimed at a point of the ground in a game seen in perspective.
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

// A view of the ground plane, from an item's view matrix. Pure; any thread.
//
// Forms that a point takes: display pixels; normalised, from -1 to 1 with y upwards; and on the ground, in the units of
// the game.
class GroundView {
 public:
  // `text` is 16 numbers joined by commas, column after column. Nothing when there are not exactly 16 parts; a part
  // that is no number reads as 0.
  static std::optional<GroundView> Parse(const QString& text);

  // The ground point behind a normalised one; (0, 0) where the line of sight meets the ground nowhere or everywhere.
  QPointF Solve(const QPointF& normalised) const;

 private:
  double m_[16] = {};  // row after row
};

// Display pixels to normalised ones.
QPointF Normalise(const QPoint& point, const QSize& display);

// The target around `button` that casts to where `pointer` stands on the ground; all in display pixels. (0, 0) when the
// item describes no view or the result cannot be told.
QPoint ProjectOnGround(const tavikeymapmanager::SpellConfigItem& item, const QPoint& pointer, const QPoint& button,
                       const QSize& display);

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_GROUND_PROJECTION_H_
