#include "handlers/windows_wm_relative_input_event_handler.h"

#include "core/input_status_manager.h"
#include "handlers/qt_mouse_event_transparent_handler.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/view/staring_and_fire_event_simulator.h"

namespace taviinputmanager {

WindowsWmRelativeInputEventHandler::WindowsWmRelativeInputEventHandler() = default;

void WindowsWmRelativeInputEventHandler::OnRelativeInput(int dx, int dy, int interval_ms, double factor) {
  const InputStatus status = InputStatusManager::GetInstance()->GetStatus();
  if (status != InputStatus::Staring && status != InputStatus::Observing) {
    return QtMouseEventTransparentHandler::GetInstance()->OnRelativeInput(dx, dy, interval_ms, factor);
  }
  SpellEventSimulator* spell = SpellEventSimulator::GetInstance();
  if (spell->IsSpellActive()) return spell->OnRelativeInput(dx, dy);
  StaringAndFireEventSimulator::GetInstance()->OnRelativeInput(dx, dy);
}

}  // namespace taviinputmanager
