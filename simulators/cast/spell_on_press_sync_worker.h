// The cast that is performed at the press of its key.
#ifndef SIMULATORS_CAST_SPELL_ON_PRESS_SYNC_WORKER_H_
#define SIMULATORS_CAST_SPELL_ON_PRESS_SYNC_WORKER_H_

#include "simulators/cast/spell_sync_worker.h"

namespace taviinputmanager {

// mouse: key down -- swipe to the target -- lift
// inner walk: key down -- tap on the button
// walk: key down -- finger on the button -- the first direction reported -- finger there -- lift; a walk reports its
// present direction at once, and at rest that it has none. Any other location does nothing and stays active.
class SpellOnPressSyncWorker : public SpellSyncWorker {
 public:
  static SpellOnPressSyncWorker* GetInstance();

  void Press(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  void Release(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) override;
  bool OnMouseEvent(QMouseEvent* event) override;
  bool NeedsFinish() const override;
  void Finish() override;
  void Follow() override;
  void OnJoystickAxis(JoystickAxisEvent* event) override;
  void OnRelativeInput(int dx, int dy) override;
  void OnSwipeholdTargetPoint(QPointF point) override;

 private:
  SpellOnPressSyncWorker() = default;

  // Ends `cast`. Returns false and does nothing if it is already over.
  bool End(unsigned cast);
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_ON_PRESS_SYNC_WORKER_H_
