#include <cmath>

#include <QLineF>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/input_status_manager.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "keymap/spell_config_item.h"
#include "simulators/cast/ground_projection.h"
#include "simulators/cast/spell_aim.h"
#include "simulators/cast/spell_sync_worker.h"
#include "simulators/view/staring_wm_relative_input_worker.h"
#include "slots/spell_slot_manager.h"
#include "taviinputmanager/joystick_event.h"

// Aiming with the pointer, with relative counts, with a stick and with the walk.

namespace taviinputmanager {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

constexpr double kDegree = 0.017453292519943295;  // in radians
constexpr double kStickStep = 0.125;              // relative to the button's radius
constexpr int kStickStepMs = 8;
// The whole circle is 16 steps wide. A movement of many more, caused by a tiny radius, would block almost endlessly.
constexpr double kMostSteps = 1000;

QSize DisplaySize() { return DisplayGeometry::GetInstance()->GetDisplayRect().size(); }

}  // namespace

QPoint SpellSyncWorker::PressPoint(const SpellConfigItem* item) {
  return item ? spell_aim::PressPoint(*item, DisplaySize()) : QPoint();
}

QPoint SpellSyncWorker::WalkPoint(const QPointF& direction) const {
  const Item item = spell_item_;
  const QSize display = DisplaySize();
  return spell_aim::WalkTarget(*item, direction, spell_aim::PressPoint(*item, display), display);
}

QPoint SpellSyncWorker::CalculateTargetPoint(const SpellConfigItem* item) {
  if (!item) return {};
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  const QPoint button = spell_aim::PressPoint(*item, display.size());
  // While the mouse is captured, or a walk aims, the pointer has no meaning.
  if (InputStatusManager::GetInstance()->GetStatus() == InputStatus::Staring || spell_aim::IsAimedByWalk(*item)) {
    return button;
  }

  const QPoint pointer = Difference(Clock::Pointer(), display.topLeft());
  if (item->mode == keywords::kModeCurve) return pointer;
  const QPoint on_ground = ProjectOnGround(*item, pointer, button, display.size());
  if (!on_ground.isNull()) return on_ground;
  return spell_aim::CircleTarget(*item, pointer, button, display.size());
}

void SpellSyncWorker::Follow() {
  if (!spell_item_ || from_joystick_) return;
  const Item item = spell_item_;
  const unsigned cast = CurrentCast();
  StepTo(CalculateTargetPoint(item.get()), 0, cast);
}

void SpellSyncWorker::OnRelativeInput(int dx, int dy) {
  if (!spell_item_ || from_joystick_) return;
  accumulated_.Add(dx, dy);
  const Item item = spell_item_;
  const unsigned cast = CurrentCast();
  const QSize display = DisplaySize();
  const QPoint button = spell_aim::PressPoint(*item, display);
  const QPointF sensitivity = StaringWmRelativeInputWorker::GetInstance()->GetEffectiveSensitivity();
  if (item->offset_enabled) {
    const double h = display.height();
    spell_offset_.OnMovement(accumulated_, sensitivity, h * item->offset_threshold, h * item->offset_length);
  }
  const QPoint way = Sum(spell_offset_.Get(), accumulated_.ToPixels(sensitivity));
  StepTo(spell_aim::LimitToSquare(*item, Sum(button, way), button, display), 0, cast);
}

void SpellSyncWorker::OnJoystickAxis(JoystickAxisEvent* event) {
  if (!spell_item_ || !from_joystick_) return;
  const Item item = spell_item_;
  const unsigned cast = CurrentCast();
  const QSize display = DisplaySize();
  const QPoint button = spell_aim::PressPoint(*item, display);
  const QPoint target = spell_aim::StickTarget(*item, {event->x, event->y}, button, display);

  SlideTowards(target, display.width() * item->swipe_radius * kStickStep, cast);
  StepTo(target, 0, cast);
}

void SpellSyncWorker::SlideTowards(const QPoint& target, double step, unsigned cast) {
  const QPoint from = SpellSlotManager::GetInstance()->position;
  const QLineF way(from, target);
  const double length = way.length();
  if (!(step > 0 && length / step < kMostSteps)) return;
  const double angle = way.angle() * kDegree;
  const double cos = std::cos(angle);
  const double sin = -std::sin(angle);  // angles increase upwards, pixels downwards
  for (double d = step; d < length; d += step) {
    StepTo(Sum(from, {Truncate(cos * d), Truncate(sin * d)}), kStickStepMs, cast);
  }
}

void SpellSyncWorker::OnSwipeholdTargetPoint(QPointF point) {
  if (!spell_item_ || from_joystick_ || spell_item_->touch_location != keywords::kLocationSwipehold) return;
  const unsigned cast = CurrentCast();
  StepTo(WalkPoint(point), 0, cast);
}

}  // namespace taviinputmanager
