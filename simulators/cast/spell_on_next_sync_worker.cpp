#include "simulators/cast/spell_on_next_sync_worker.h"

#include <QMouseEvent>

#include "keymap/spell_config_item.h"

namespace taviinputmanager {

using tavikeymapmanager::SpellConfigItem;

SpellOnNextSyncWorker* SpellOnNextSyncWorker::GetInstance() {
  static SpellOnNextSyncWorker instance;
  return &instance;
}

void SpellOnNextSyncWorker::Press(SpellConfigItem* item, bool from_joystick) {
  const SpellConfigItem* in_force = GetSpellItem();
  if (!in_force) return PressAndAim(item, from_joystick);
  if (!tavikeymapmanager::IsSameKey(in_force->key, item->key)) return;
  ChangeSpellState(kSpellFinished);
  LiftFinger();
  AfterCast(item);
}

void SpellOnNextSyncWorker::Release(SpellConfigItem* /*item*/, bool /*from_joystick*/) {}

bool SpellOnNextSyncWorker::OnMouseEvent(QMouseEvent* event) {
  const SpellConfigItem* in_force = GetSpellItem();
  if (!in_force || !in_force->mouse_click_casts || event->button() != Qt::LeftButton) return false;
  if (event->type() == QEvent::MouseButtonPress) return true;  // the click must not touch as well
  if (event->type() != QEvent::MouseButtonRelease) return false;
  ChangeSpellState(kSpellFinished);
  LiftFinger();
  return true;
}

bool SpellOnNextSyncWorker::NeedsFinish() const { return true; }

void SpellOnNextSyncWorker::Finish() { FinishAiming(); }

}  // namespace taviinputmanager
