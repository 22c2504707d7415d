#include "simulators/cast/spell_immediate_sync_worker.h"

#include "keymap/spell_config_item.h"

namespace taviinputmanager {

using tavikeymapmanager::SpellConfigItem;

SpellImmediateSyncWorker* SpellImmediateSyncWorker::GetInstance() {
  static SpellImmediateSyncWorker instance;
  return &instance;
}

void SpellImmediateSyncWorker::Press(SpellConfigItem* item, bool from_joystick) {
  if (IsActive()) return;  // already held
  StoreItem(*item);
  SetFromJoystick(from_joystick);
  const unsigned cast = CurrentCast();
  StepTo(PressPoint(item), 0, cast);
  if (!IsCastOver(cast)) ChangeSpellState(kSpellAiming, item);
}

void SpellImmediateSyncWorker::Release(SpellConfigItem* item, bool /*from_joystick*/) { CastOnRelease(item); }

bool SpellImmediateSyncWorker::OnMouseEvent(QMouseEvent* /*event*/) { return false; }

bool SpellImmediateSyncWorker::NeedsFinish() const { return false; }

void SpellImmediateSyncWorker::Finish() {}

void SpellImmediateSyncWorker::Follow() {}

void SpellImmediateSyncWorker::OnJoystickAxis(JoystickAxisEvent* /*event*/) {}

void SpellImmediateSyncWorker::OnRelativeInput(int /*dx*/, int /*dy*/) {}

}  // namespace taviinputmanager
