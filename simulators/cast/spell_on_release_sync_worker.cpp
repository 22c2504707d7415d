#include "simulators/cast/spell_on_release_sync_worker.h"

#include "keymap/spell_config_item.h"

namespace taviinputmanager {

using tavikeymapmanager::SpellConfigItem;

SpellOnReleaseSyncWorker* SpellOnReleaseSyncWorker::GetInstance() {
  static SpellOnReleaseSyncWorker instance;
  return &instance;
}

void SpellOnReleaseSyncWorker::Press(SpellConfigItem* item, bool from_joystick) {
  if (IsActive()) return;  // already held
  PressAndAim(item, from_joystick);
}

void SpellOnReleaseSyncWorker::Release(SpellConfigItem* item, bool /*from_joystick*/) { CastOnRelease(item); }

bool SpellOnReleaseSyncWorker::OnMouseEvent(QMouseEvent* /*event*/) { return false; }

bool SpellOnReleaseSyncWorker::NeedsFinish() const { return true; }

void SpellOnReleaseSyncWorker::Finish() { FinishAiming(); }

}  // namespace taviinputmanager
