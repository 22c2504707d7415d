// The geometry of an aimed cast: computes the contact's target from what the player aims with.
#ifndef SIMULATORS_CAST_SPELL_AIM_H_
#define SIMULATORS_CAST_SPELL_AIM_H_

#include <QPoint>
#include <QPointF>
#include <QSize>

namespace tavikeymapmanager {
struct SpellConfigItem;
}

// Pure functions; any thread. Points and sizes are display pixels. Values that do not fit an int saturate, and a size
// or radius of 0 moves nothing.
namespace taviinputmanager::spell_aim {

// Whether a walk, the ordinary one or the spell's own, aims instead of the pointer.
bool IsAimedByWalk(const tavikeymapmanager::SpellConfigItem& item);

// The end of step `i` of `steps` on the straight line between two points.
QPoint StepBetween(const QPoint& from, const QPoint& to, int i, int steps);
// The end of step `i` of the first part of a swipe, whose steps have a length of their own.
QPoint CurvePoint(const tavikeymapmanager::SpellConfigItem& item, const QPoint& from, const QPoint& to, int i,
                  const QSize& display);

// The skill button.
QPoint PressPoint(const tavikeymapmanager::SpellConfigItem& item, const QSize& display);
// The pointer in the circle around the character, mapped to the circle around `button`. A pointer outside is moved to
// the edge.
QPoint CircleTarget(const tavikeymapmanager::SpellConfigItem& item, const QPoint& pointer, const QPoint& button,
                    const QSize& display);
// The edge of the button's circle in the direction of a walk; 1 is the full radius. The radius is a fraction of the
// display's height here, and of its width with a stick and with relative counts.
QPoint WalkTarget(const tavikeymapmanager::SpellConfigItem& item, const QPointF& direction, const QPoint& button,
                  const QSize& display);
// The point of the button's circle for a stick position from (-1, -1) to (1, 1).
QPoint StickTarget(const tavikeymapmanager::SpellConfigItem& item, const QPointF& stick, const QPoint& button,
                   const QSize& display);
// `point`, clamped to the square around `button`.
QPoint LimitToSquare(const tavikeymapmanager::SpellConfigItem& item, const QPoint& point, const QPoint& button,
                     const QSize& display);

}  // namespace taviinputmanager::spell_aim

#endif  // SIMULATORS_CAST_SPELL_AIM_H_
