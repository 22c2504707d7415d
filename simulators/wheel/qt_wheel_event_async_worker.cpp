#include "simulators/wheel/qt_wheel_event_async_worker.h"

#include <cstdlib>

#include <QRect>
#include <QTimer>
#include <QWheelEvent>

#include "core/display_geometry.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "keymap/keymap_config.h"
#include "slots/mouse_wheel_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::KeymapConfig;

namespace {

constexpr int kTickMs = 8;
constexpr int kMoves = 20;
constexpr double kNotch = 120.0;  // eighths of a degree

// How many pixels one notch moves the contact in each tick.
int StepOfNotch(const KeymapConfig* config) {
  const int height = DisplayGeometry::GetInstance()->GetDisplayRect().height();
  return config && config->wheel_settings ? Round(height * config->wheel_settings->scroll_step) : height / 100;
}

}  // namespace

QtWheelEventAsyncWorker::QtWheelEventAsyncWorker() : timer_(new QTimer(this)) {
  timer_->setTimerType(Qt::PreciseTimer);
  connect(timer_, &QTimer::timeout, this, &QtWheelEventAsyncWorker::TimerOutTime);
}

void QtWheelEventAsyncWorker::OnWheel(QWheelEvent* event, KeymapConfig* config) {
  const int delta = event->angleDelta().y();
  step_ = Truncate(std::abs(static_cast<double>(delta)) / kNotch * StepOfNotch(config));
  ticks_ = delta > 0 ? kMoves : -kMoves;
  if (IsRunning()) return;  // the swipe continues from its position
  MouseWheelSlotManager* finger = MouseWheelSlotManager::GetInstance();
  finger->position = RoundedPoint(event->position());
  timer_->start(kTickMs);
  SendEvent(finger->UpdateLine());
}

bool QtWheelEventAsyncWorker::IsRunning() const { return timer_->isActive(); }

void QtWheelEventAsyncWorker::TimerOutTime() {
  MouseWheelSlotManager* finger = MouseWheelSlotManager::GetInstance();
  if (ticks_ == 0) {
    finger->Reset();
    timer_->stop();
    return SendEvent(finger->UpdateLine());
  }
  const int direction = ticks_ > 0 ? 1 : -1;
  finger->position.setY(Truncate(finger->position.y() + direction * static_cast<double>(step_)));
  ticks_ -= direction;
  SendEvent(finger->UpdateLine());
}

}  // namespace taviinputmanager
