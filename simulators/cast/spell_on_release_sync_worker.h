// The cast that aims while its key is held.
#ifndef SIMULATORS_CAST_SPELL_ON_RELEASE_SYNC_WORKER_H_
#define SIMULATORS_CAST_SPELL_ON_RELEASE_SYNC_WORKER_H_

#include "simulators/cast/spell_sync_worker.h"

namespace taviinputmanager {

// key down -- swipe to the target ---- follows the aim .... key up -- lift
class SpellOnReleaseSyncWorker : public SpellSyncWorker {
 public:
  static SpellOnReleaseSyncWorker* GetInstance();

  void Press(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  void Release(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  bool OnMouseEvent(QMouseEvent* event) override;
  bool NeedsFinish() const override;
  void Finish() override;

 private:
  SpellOnReleaseSyncWorker() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_ON_RELEASE_SYNC_WORKER_H_
