#include "simulators/wheel/qt_wheel_event_zoom_worker.h"

#include <algorithm>
#include <cmath>

#include <QRect>
#include <QTimer>
#include <QWheelEvent>

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "keymap/keymap_config.h"

namespace taviinputmanager {

using tavikeymapmanager::KeymapConfig;

namespace {

constexpr int kSecondFingerSlot = 0;  // outside all slot managers
constexpr int kFirstFingerSlot = 10;  // the scroll swipe's
constexpr double kRadiansOfDegree = 3.141592653589793 / 180.0;
constexpr int kWayNotches = 4;     // from the inner to the outer end of a contact's path
constexpr int kInwardNotches = 3;  // how far out an inward pinch starts

// Keeps the sizes of a hostile keymap finite.
double Product(int a, int b) { return static_cast<double>(a) * b; }

QPoint Mirrored(const QPoint& a) { return {NegateSaturated(a.x()), NegateSaturated(a.y())}; }

guest_command::Contact ContactAt(int slot, const QPoint& window) {
  guest_command::Contact contact{slot, window.x(), window.y()};
  DisplayGeometry::GetInstance()->WindowToTouch(contact.x, contact.y);
  return contact;
}

bool IsOnDisplay(const guest_command::Contact& contact) { return contact.x != kNoPosition && contact.y != kNoPosition; }

}  // namespace

QtWheelEventZoomWorker::QtWheelEventZoomWorker() : timer_(new QTimer(this)) {
  timer_->setTimerType(Qt::PreciseTimer);
  connect(timer_, &QTimer::timeout, this, &QtWheelEventZoomWorker::TimerOutTime);
}

bool QtWheelEventZoomWorker::IsRunning() const { return timer_->isActive(); }

// The angle of a keymap stays if the next one has no settings; everything else is reset.
void QtWheelEventZoomWorker::LoadSettings(const KeymapConfig* config) {
  first_interval_ms_ = 16;
  notch_ticks_ = 8;
  unit_fraction_ = 0.00325;
  release_wait_ms_ = 80;
  tick_ms_ = 14;
  spread_ = 10;
  swap_fingers_ = false;
  if (!config || !config->wheel_settings) return;
  const auto& settings = *config->wheel_settings;
  first_interval_ms_ = settings.zoom_first_interval_ms;
  release_wait_ms_ = settings.zoom_release_ms;
  tick_ms_ = settings.zoom_tick_ms;
  notch_ticks_ = settings.zoom_notch_ticks;
  spread_ = settings.zoom_spread;
  unit_fraction_ = settings.zoom_step;
  angle_degrees_ = settings.zoom_angle;
  swap_fingers_ = settings.zoom_swap_fingers;
}

void QtWheelEventZoomWorker::OnWheel(QWheelEvent* event, KeymapConfig* config) {
  LoadSettings(config);
  finished_ = false;
  const int notch = event->angleDelta().y() < 1 ? NegateSaturated(notch_ticks_) : notch_ticks_;
  if (IsRunning()) {
    ticks_ = AddSaturated(ticks_, notch);
    timer_->start(std::max(0, tick_ms_));
    return;
  }
  ticks_ = notch;
  const QPoint center = RoundedPoint(event->position());
  SetBounds(center);
  StartPinch(center);
}

int QtWheelEventZoomWorker::Unit() const {
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  return Round(std::max(display.width(), display.height()) * unit_fraction_);
}

QPoint QtWheelEventZoomWorker::ArmOf(double units) const {
  const double angle = angle_degrees_ * kRadiansOfDegree;
  const double length = units * Unit();
  return {NegateSaturated(Round(length * std::cos(angle))), Round(length * std::sin(angle))};
}

void QtWheelEventZoomWorker::SetBounds(const QPoint& center) {
  inner_a_ = Sum(center, ArmOf(spread_));
  outer_a_ = Sum(center, ArmOf(spread_ + Product(kWayNotches, notch_ticks_)));
}

void QtWheelEventZoomWorker::StartPinch(const QPoint& center) {
  const QPoint arm = ArmOf(ticks_ < 0 ? spread_ + Product(kInwardNotches, notch_ticks_) : spread_);
  finger_a_ = Sum(center, arm);
  finger_b_ = Sum(center, Mirrored(arm));
  const double angle = angle_degrees_ * kRadiansOfDegree;
  step_ = QPoint(Round(Unit() * std::cos(angle)), NegateSaturated(Round(Unit() * std::sin(angle))));
  timer_->start(std::max(0, first_interval_ms_));
  SendPinch();
}

void QtWheelEventZoomWorker::TimerOutTime() {
  if (finished_) {
    timer_->stop();
    SendRelease();
  } else if (ticks_ > 0) {
    MoveApart();
  } else if (ticks_ < 0) {
    MoveTogether();
  } else {
    Rest();
  }
}

void QtWheelEventZoomWorker::MoveApart() {
  MoveFingers(-1);
  if (!IsWithinBounds()) return EndPinch();
  --ticks_;
  GoOn();
}

void QtWheelEventZoomWorker::MoveTogether() {
  MoveFingers(1);
  if (!IsWithinBounds()) return EndPinch();
  ++ticks_;
  GoOn();
}

// 1 moves contact a right and down the line, towards the pointer; -1 away from it.
void QtWheelEventZoomWorker::MoveFingers(int direction) {
  const QPoint way = direction > 0 ? step_ : Mirrored(step_);
  finger_a_ = Sum(finger_a_, way);
  finger_b_ = Sum(finger_b_, Mirrored(way));
}

// The outer end is on the left, or, beyond 90 degrees, on the right.
bool QtWheelEventZoomWorker::IsWithinBounds() const {
  const auto [left, right] = std::minmax({inner_a_.x(), outer_a_.x()});
  return finger_a_.x() > left && finger_a_.x() < right;
}

void QtWheelEventZoomWorker::GoOn() {
  timer_->start(std::max(0, tick_ms_));
  SendPinch();
}

void QtWheelEventZoomWorker::EndPinch() {
  finished_ = true;
  ticks_ = 0;
  timer_->stop();
  SendRelease();
}

// The contacts stay down, so that a following wheel movement can continue the pinch.
void QtWheelEventZoomWorker::Rest() {
  finished_ = true;
  if (release_wait_ms_ > 0) timer_->start(release_wait_ms_);
}

void QtWheelEventZoomWorker::SendPinch() {
  const guest_command::Contact a = ContactAt(swap_fingers_ ? kFirstFingerSlot : kSecondFingerSlot, finger_a_);
  const guest_command::Contact b = ContactAt(swap_fingers_ ? kSecondFingerSlot : kFirstFingerSlot, finger_b_);
  if (!IsOnDisplay(a) || !IsOnDisplay(b)) return;
  SendEvent(guest_command::SlotMultiPress({a, b}));
}

void QtWheelEventZoomWorker::SendRelease() {
  SendEvent(guest_command::SlotMultiRelease({kFirstFingerSlot, kSecondFingerSlot}));
}

}  // namespace taviinputmanager
