// The cast that lasts as long as its key is held.
#ifndef SIMULATORS_CAST_SPELL_IMMEDIATE_SYNC_WORKER_H_
#define SIMULATORS_CAST_SPELL_IMMEDIATE_SYNC_WORKER_H_

#include "simulators/cast/spell_sync_worker.h"

namespace taviinputmanager {

// key down -- finger on the button ........ key up -- lift
//
// Only the walk aims: the contact stays on the button.
class SpellImmediateSyncWorker : public SpellSyncWorker {
 public:
  static SpellImmediateSyncWorker* GetInstance();

  void Press(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  void Release(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  bool OnMouseEvent(QMouseEvent* event) override;
  bool NeedsFinish() const override;
  void Finish() override;
  void Follow() override;
  void OnJoystickAxis(JoystickAxisEvent* event) override;
  void OnRelativeInput(int dx, int dy) override;

 private:
  SpellImmediateSyncWorker() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_IMMEDIATE_SYNC_WORKER_H_
