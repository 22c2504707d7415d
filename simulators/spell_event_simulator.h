// Aimed casts.
#ifndef SIMULATORS_SPELL_EVENT_SIMULATOR_H_
#define SIMULATORS_SPELL_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

class QMouseEvent;

namespace tavikeymapmanager {
struct SpellCancelConfigItem;
}

namespace taviinputmanager {

class JoystickAxisEvent;

class SpellEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static SpellEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Whether a mouse event ends a cast that waits for it, and is used up by that.
  bool OnMouseEvent(QMouseEvent* event);
  // Whether a cast is being aimed.
  bool IsSpellActive() const;
  // Aims by a gamepad's right stick.
  void OnJoystickAxis(JoystickAxisEvent* event);
  // Relative counts, which aim a cast in progress.
  void OnRelativeInput(int dx, int dy);
  // Ends a cast in progress.
  void ForceStop();

 Q_SIGNALS:
  void sigSpellCancelPressed(tavikeymapmanager::SpellCancelConfigItem& item);

 private:
  SpellEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_SPELL_EVENT_SIMULATOR_H_
