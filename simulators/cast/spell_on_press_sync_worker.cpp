#include "simulators/cast/spell_on_press_sync_worker.h"

#include "keymap/spell_config_item.h"

namespace taviinputmanager {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

SpellOnPressSyncWorker* SpellOnPressSyncWorker::GetInstance() {
  static SpellOnPressSyncWorker instance;
  return &instance;
}

void SpellOnPressSyncWorker::Press(SpellConfigItem* item, bool from_joystick) {
  if (!IsActive()) StoreItem(*item);
  SetFromJoystick(from_joystick);
  const unsigned cast = CurrentCast();
  const QPoint button = PressPoint(item);
  const QPoint target = CalculateTargetPoint(item);
  if (IsCastOver(cast)) return;
  if (item->touch_location == keywords::kLocationMouse) {
    SwipeToTarget(item, button, target);
    if (End(cast)) AfterCast(item);
  } else if (item->touch_location == keywords::kLocationInnerSwipehold) {
    MoveFinger(target);
    End(cast);
  } else if (item->touch_location == keywords::kLocationSwipehold) {
    MoveFinger(button);
    if (!IsCastOver(cast)) ChangeSpellState(kSpellAiming, item);
  }
}

bool SpellOnPressSyncWorker::End(unsigned cast) {
  if (IsCastOver(cast)) return false;
  DropItem();
  LiftFinger();
  return true;
}

void SpellOnPressSyncWorker::Release(SpellConfigItem* /*item*/, bool /*from_joystick*/) {}

bool SpellOnPressSyncWorker::OnMouseEvent(QMouseEvent* /*event*/) { return false; }

bool SpellOnPressSyncWorker::NeedsFinish() const { return false; }

void SpellOnPressSyncWorker::Finish() {}

void SpellOnPressSyncWorker::Follow() {}

void SpellOnPressSyncWorker::OnJoystickAxis(JoystickAxisEvent* /*event*/) {}

void SpellOnPressSyncWorker::OnRelativeInput(int /*dx*/, int /*dy*/) {}

void SpellOnPressSyncWorker::OnSwipeholdTargetPoint(QPointF point) {
  if (!IsActive() || IsFromJoystick() || GetSpellState() != kSpellAiming) return;
  const unsigned cast = CurrentCast();
  const QPoint target = WalkPoint(point);
  if (IsCastOver(cast)) return;
  ChangeSpellState(kSpellCast);
  MoveFinger(target);
  End(cast);
}

}  // namespace taviinputmanager
