#include "simulators/view/right_stick_eye_sync_worker.h"

#include <QPointF>

#include "core/display_geometry.h"
#include "core/numbers.h"
#include "keymap/joystick_right_eye_config_item.h"
#include "slots/joystick_right_stick_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::JoystickRightEyeConfigItem;

namespace {

constexpr double kWayPerEvent = 0.005;  // for a full deflection at sensitivity 1, in display widths

}  // namespace

RightStickEyeSyncWorker* RightStickEyeSyncWorker::GetInstance() {
  static RightStickEyeSyncWorker instance;
  return &instance;
}

RightStickEyeSyncWorker::RightStickEyeSyncWorker() : finger_(JoystickRightStickSlotManager::GetInstance()) {}

void RightStickEyeSyncWorker::OnStick(const JoystickRightEyeConfigItem* item, const QPointF& stick) {
  if (!item) return;  // the stick's name is mapped to an item of another class
  const unsigned turn = events_.Begin();
  if (stick.isNull()) {
    finger_->Reset();
  } else {
    if (finger_->HasTouch()) {
      MoveBy(stick);
    } else {
      LayOut(*item);
      if (events_.IsOver(turn)) return;  // a newer event came during the host's answer
      finger_->position = range_.GetCentre();
    }
    range_.Apply(finger_, item->auto_reset, item->range_mode);
  }
  SendEvent(finger_->UpdateLine());
}

void RightStickEyeSyncWorker::LayOut(const JoystickRightEyeConfigItem& item) {
  range_.Prepare({item.rel_x, item.rel_y}, item.range_size);
  display_width_ = DisplayGeometry::GetInstance()->GetDisplayRect().width();
  stick_sensitivity_ = item.sensitivity / 100.0;
}

void RightStickEyeSyncWorker::MoveBy(const QPointF& stick) {
  // The width applies to both axes: the same deflection is the same distance on the screen in any direction.
  QPoint& position = finger_->position;
  position.rx() = AddSaturated(position.x(), Round(stick.x() * kWayPerEvent * stick_sensitivity_ * display_width_));
  position.ry() = AddSaturated(position.y(), Round(stick.y() * kWayPerEvent * stick_sensitivity_ * display_width_));
}

}  // namespace taviinputmanager
