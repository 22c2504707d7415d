// Stories of the fire button.
#ifndef TESTS_SIMULATORS_VIEW_FIRE_STORY_H_
#define TESTS_SIMULATORS_VIEW_FIRE_STORY_H_

#include "simulators/cast/spell_event_simulator.h"
#include "simulators/view/fire_sync_worker.h"
#include "simulators/view/staring_and_fire_event_simulator.h"
#include "tests/support/view_story.h"

namespace taviinputmanager {

// The fire contact at a point, at time zero.
inline QString FireAt(int x, int y) { return QStringLiteral("0ms 1:SLOTPRESS:3:3:1:1:%1:%2").arg(x).arg(y); }

inline const QString kFireUp = QStringLiteral("0ms 1:SLOTRELEASE:3");
inline const QString kViewUp = QStringLiteral("0ms 1:SLOTRELEASE:1");
inline const QString kViewOnCentre = QStringLiteral("0ms 1:SLOTPRESS:1:1:1:1:640:360");

// Records the worker's signals.
class Fire : public ViewStory {
 protected:
  Fire() {
    Note(&FireSyncWorker::sigSubscribeWmRelativeInputEvent, "take counts");
    Note(&FireSyncWorker::sigUnSubscribeWmRelativeInputEvent, "give counts back");
    Note(&FireSyncWorker::sigSubscribeSpellCancelKey, "listen");
    Note(&FireSyncWorker::sigUnSubscribeSpellCancelKey, "stop listening");
  }

  // In view control, with the fire key down and its lines cleared.
  void StartFiring() {
    Stare();
    PressFire();
    Forget();
    signals_.clear();
  }

  // The spell-cancel key, point (160, 180), as a cast's simulator reports it.
  void PressSpellCancel(int delay_ms) {
    tavikeymapmanager::SpellCancelConfigItem item = SpellCancel(delay_ms);
    Q_EMIT SpellEventSimulator::GetInstance()->sigSpellCancelPressed(item);
  }

  static tavikeymapmanager::SpellCancelConfigItem SpellCancel(int delay_ms) {
    tavikeymapmanager::SpellCancelConfigItem item;
    item.type = "SpellCancel";
    item.rel_x = 0.125;
    item.rel_y = 0.25;
    item.cancel_delay_ms = delay_ms;
    return item;
  }

  static void Press(tavikeymapmanager::ConfigItem* item) {
    tavikeymapmanager::ConfigKey key;
    StaringAndFireEventSimulator::GetInstance()->Press(item, &key);
  }

  QStringList signals_;

 private:
  void Note(void (FireSyncWorker::*signal)(), const char* name) {
    QObject::connect(FireSyncWorker::GetInstance(), signal, &context_, [this, name] { signals_.append(name); });
  }

  QObject context_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SIMULATORS_VIEW_FIRE_STORY_H_
