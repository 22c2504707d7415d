#include "handlers/windows_wm_relative_input_event_handler.h"

#include "core/input_status_manager.h"
#include "handlers/qt_mouse_event_transparent_handler.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/view/staring_and_fire_event_simulator.h"

namespace taviinputmanager {

WindowsWmRelativeInputEventHandler::WindowsWmRelativeInputEventHandler()
    : status_(InputStatusManager::GetInstance()),
      spell_(SpellEventSimulator::GetInstance()),
      view_(StaringAndFireEventSimulator::GetInstance()) {}

void WindowsWmRelativeInputEventHandler::OnRelativeInput(int dx, int dy, int interval_ms, double factor) {
  const InputStatus status = status_->GetStatus();
  if (status != InputStatus::Staring && status != InputStatus::Observing) {
    return QtMouseEventTransparentHandler::GetInstance()->OnRelativeInput(dx, dy, interval_ms, factor);
  }
  if (spell_->IsSpellActive()) return spell_->OnRelativeInput(dx, dy);
  view_->OnRelativeInput(dx, dy);
}

}  // namespace taviinputmanager
