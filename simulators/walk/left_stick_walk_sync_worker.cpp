#include "simulators/walk/left_stick_walk_sync_worker.h"

#include <algorithm>
#include <cmath>

#include <QLineF>
#include <QtMath>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/numbers.h"
#include "slots/joystick_left_stick_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::JoystickLeftWalkConfigItem;

namespace {

constexpr int kPressMs = 16;  // pause after the press, without smooth_start
constexpr int kStepMs = 8;
constexpr double kStepsPerRadius = 8;
// The whole stick is 16 steps wide. More steps are only possible with a radius that shrank to almost nothing under a
// held stick, or with an absurd jump; such a run would block almost endlessly, so the contact jumps to its target.
constexpr double kMostSteps = 1000;

// `from` moved by whole pixels.
QPoint Moved(const QPoint& from, double dx, double dy) { return {Truncate(from.x() + dx), Truncate(from.y() + dy)}; }

}  // namespace

LeftStickWalkSyncWorker* LeftStickWalkSyncWorker::GetInstance() {
  static LeftStickWalkSyncWorker instance;
  return &instance;
}

LeftStickWalkSyncWorker::LeftStickWalkSyncWorker() : finger_(JoystickLeftStickSlotManager::GetInstance()) {
  stop_timer_.setTimerType(Qt::PreciseTimer);
  connect(&stop_timer_, &QTimer::timeout, this, &LeftStickWalkSyncWorker::onStopTimerOutTime);
}

void LeftStickWalkSyncWorker::OnStick(const JoystickLeftWalkConfigItem* item, const QPointF& stick) {
  if (!item) return;  // the stick's name is mapped to an item of another class
  const unsigned turn = events_.Begin();
  stick_item_ = *item;
  stop_timer_.stop();
  if (stick.isNull()) return OnRest();
  if (!walk_enabled_) return;  // stopped by force: the stick must first return to rest
  const QSize display = DisplayGeometry::GetInstance()->GetDisplayRect().size();
  const QPoint centre(Truncate(display.width() * item->rel_x), Truncate(display.height() * item->rel_y));
  const bool is_fresh = !finger_->HasTouch();
  if (is_fresh && !events_.IsOver(turn)) PutDown(centre);
  if (events_.IsOver(turn)) return;  // a newer event gives the stick's position
  // Both axes are relative to the width: the stick is round in pixels.
  const QPoint target = Moved(centre, Truncate(item->walk_radius * stick.x() * display.width()),
                              Truncate(item->walk_radius * stick.y() * display.width()));
  DrawTo(target, is_fresh && item->smooth_start);
}

void LeftStickWalkSyncWorker::OnRest() {
  if (stick_item_.delayed_stop) return stop_timer_.start(std::max(0, stick_item_.stop_delay_ms));
  walk_enabled_ = true;
  LiftFinger();
}

void LeftStickWalkSyncWorker::onStopTimerOutTime() {
  const int settle_ms = stick_item_.stop_settle_ms;
  walk_enabled_ = true;
  stop_timer_.stop();
  LiftFinger();
  Clock::Sleep(settle_ms);
}

void LeftStickWalkSyncWorker::PutDown(const QPoint& centre) {
  const int pause_ms = stick_item_.smooth_start ? stick_item_.press_hold_ms : kPressMs;
  MoveFinger(centre);
  Clock::Sleep(pause_ms);
}

void LeftStickWalkSyncWorker::DrawTo(const QPoint& target, bool jumps) {
  const unsigned turn = events_.Current();
  const QPoint from = finger_->position;
  const QLineF line(from, target);
  const double length = line.length();
  const double angle = qDegreesToRadians(line.angle());
  const double cos = std::cos(angle);
  const double sin = -std::sin(angle);  // angles increase upwards, pixels downwards
  const double step =
      DisplayGeometry::GetInstance()->GetDisplayRect().width() * stick_item_.walk_radius / kStepsPerRadius;
  const auto step_to = [&](const QPoint& position) {
    if (!events_.IsOver(turn)) MoveFinger(position);
    if (!events_.IsOver(turn)) Clock::Sleep(kStepMs);
  };

  double distance = step;
  if (jumps) {
    const double count = Truncate(stick_item_.start_jump * kStepsPerRadius);
    step_to(Moved(from, Truncate(cos * step) * count, Truncate(sin * step) * count));
    distance = count * step + step;
  }
  if (step > 0 && (length - distance) / step < kMostSteps) {
    for (; distance < length; distance += step) {
      step_to(Moved(from, Truncate(cos * distance), Truncate(sin * distance)));
    }
  }
  step_to(target);
}

void LeftStickWalkSyncWorker::StopWalk() {
  events_.Begin();
  if (finger_->HasTouch()) walk_enabled_ = false;
  LiftFinger();
}

void LeftStickWalkSyncWorker::MoveFinger(const QPoint& position) {
  finger_->position = position;
  SendEvent(finger_->UpdateLine());
}

void LeftStickWalkSyncWorker::LiftFinger() {
  finger_->Reset();
  SendEvent(finger_->UpdateLine());
}

}  // namespace taviinputmanager
