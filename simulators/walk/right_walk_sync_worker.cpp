#include "simulators/walk/right_walk_sync_worker.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "qt/mouse_events.h"
#include "slots/mouse_swipehold_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::MouseRightWalkConfigItem;

namespace {

constexpr int kShortClickMs = 300;         // a press this long or longer is a hold
constexpr double kWalkMsPerRadius = 1000;  // of a short click, to be multiplied by the item's factor

// From the character to the pointer, in fractions of the display.
QPointF WayOf(const MouseRightWalkConfigItem& item, const QMouseEvent* event, const QSize& display) {
  const QPointF pointer = RoundedPoint(qt::PlaceOf(*event));
  return {pointer.x() / display.width() - item.character_rel_x, pointer.y() / display.height() - item.character_rel_y};
}

QPoint RoundedCentre(const MouseRightWalkConfigItem& item, const QSize& display) {
  return {Round(display.width() * item.rel_x), Round(display.height() * item.rel_y)};
}

// The point on the stick's edge in the pointer's direction. Both axes are relative to the width: the stick is round in
// pixels. A pointer exactly on the character has no direction, so only the limits determine the position: 1 if the
// display is too small for both.
QPoint TargetOf(const MouseRightWalkConfigItem& item, const QMouseEvent* event, const QSize& display) {
  const QPointF way = WayOf(item, event, display);
  const QPoint centre = RoundedCentre(item, display);
  const double factor = item.walk_radius / std::hypot(way.x(), way.y());
  const double width = display.width();
  return {std::max(1, std::min(Round(way.x() * factor * width + centre.x()), display.width() - 1)),
          std::max(1, std::min(Round(way.y() * factor * width + centre.y()), display.height() - 1))};
}

QSize DisplaySize() { return DisplayGeometry::GetInstance()->GetDisplayRect().size(); }

}  // namespace

RightWalkSyncWorker* RightWalkSyncWorker::GetInstance() {
  static RightWalkSyncWorker instance;
  return &instance;
}

RightWalkSyncWorker::RightWalkSyncWorker() : finger_(MouseSwipeholdSlotManager::GetInstance()) {
  continue_timer_.setTimerType(Qt::PreciseTimer);
  connect(&continue_timer_, &QTimer::timeout, this, &RightWalkSyncWorker::ContinueWalkTimerOutTime);
}

void RightWalkSyncWorker::Press(const MouseRightWalkConfigItem* item, QMouseEvent* event) {
  continue_timer_.stop();
  if (item) {
    walk_item_ = *item;
    finger_->TouchLastMove();
  }
  if (!walk_item_) return;  // there is no walk to move
  const unsigned turn = events_.Begin();
  const QSize display = DisplaySize();
  if (display.isEmpty() || events_.IsOver(turn)) return;  // nowhere to walk, or a newer event gives the position
  const QPoint target = TargetOf(*walk_item_, event, display);
  if (finger_->HasTouch()) return MoveFinger(target);
  if (item) SlideTo(*item, target, display);
}

void RightWalkSyncWorker::SlideTo(const MouseRightWalkConfigItem& item, const QPoint& target, const QSize& display) {
  const unsigned turn = events_.Current();
  const auto slide = [&](const QPoint& position, int pause_ms) {
    if (!events_.IsOver(turn)) MoveFinger(position);
    if (!events_.IsOver(turn)) Clock::Sleep(pause_ms);
  };
  slide({Truncate(display.width() * item.rel_x), Truncate(display.height() * item.rel_y)}, item.press_hold_ms);
  const QPointF centre = RoundedCentre(item, display);
  const QPointF way = target - centre;
  for (int i = 1; i < item.swipe_steps; ++i) {
    slide({Round(centre.x() + i * way.x() / item.swipe_steps), Round(centre.y() + i * way.y() / item.swipe_steps)},
          item.swipe_step_ms);
  }
  slide(target, 0);
}

void RightWalkSyncWorker::Release(const MouseRightWalkConfigItem* item, QMouseEvent* event) {
  const unsigned turn = events_.Begin();
  const bool is_short_click = finger_->ElapsedSinceLastMove() < kShortClickMs && finger_->HasTouch();
  if (!item || !is_short_click) return StopWalk();
  const double distance = DistanceOf(*item, event);
  if (events_.IsOver(turn)) return;
  if (!std::isfinite(distance)) return StopWalk();  // a stick or display without a size: no duration follows from it
  if (distance <= 1.0) return StopWalk();           // the click was on the character
  continue_timer_.start(std::max(0, Truncate(distance * kWalkMsPerRadius * item->continue_factor)));
}

double RightWalkSyncWorker::DistanceOf(const MouseRightWalkConfigItem& item, const QMouseEvent* event) {
  const QPointF way = WayOf(item, event, DisplaySize());
  return std::hypot(way.x(), way.y()) / item.walk_radius;
}

void RightWalkSyncWorker::OnMouseMove(QMouseEvent* event) {
  if (finger_->HasTouch()) Press(nullptr, event);
}

void RightWalkSyncWorker::StopWalk() {
  events_.Begin();
  continue_timer_.stop();
  finger_->Reset();
  walk_item_.reset();
  SendEvent(finger_->UpdateLine());
}

void RightWalkSyncWorker::MoveFinger(const QPoint& position) {
  finger_->position = position;
  SendEvent(finger_->UpdateLine());
}

}  // namespace taviinputmanager
