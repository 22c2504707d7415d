#include "simulators/spell_event_simulator.h"

namespace taviinputmanager {

SpellEventSimulator* SpellEventSimulator::GetInstance() {
  static SpellEventSimulator instance;
  return &instance;
}

void SpellEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void SpellEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

bool SpellEventSimulator::OnMouseEvent(QMouseEvent* /*event*/) { return false; }

bool SpellEventSimulator::IsSpellActive() const { return false; }

void SpellEventSimulator::OnJoystickAxis(JoystickAxisEvent* /*event*/) {}

void SpellEventSimulator::OnRelativeInput(int /*dx*/, int /*dy*/) {}

void SpellEventSimulator::ForceStop() {}

}  // namespace taviinputmanager
