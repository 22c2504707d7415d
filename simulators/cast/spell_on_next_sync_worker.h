// The cast that is aimed between two presses of its key.
#ifndef SIMULATORS_CAST_SPELL_ON_NEXT_SYNC_WORKER_H_
#define SIMULATORS_CAST_SPELL_ON_NEXT_SYNC_WORKER_H_

#include "simulators/cast/spell_sync_worker.h"

namespace taviinputmanager {

// key down -- swipe to the target ---- key up: goes on following .... key down, or a left click -- lift
class SpellOnNextSyncWorker : public SpellSyncWorker {
 public:
  static SpellOnNextSyncWorker* GetInstance();

  void Press(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  void Release(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  bool OnMouseEvent(QMouseEvent* event) override;
  bool NeedsFinish() const override;
  void Finish() override;

 private:
  SpellOnNextSyncWorker() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_ON_NEXT_SYNC_WORKER_H_
