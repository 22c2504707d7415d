#include "simulators/gamepad/bunch_tap_continue_vjoy_worker.h"

#include "simulators/item_or_default.h"

namespace taviinputmanager {

using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;

BunchTapContinueVjoyWorker::BunchTapContinueVjoyWorker(const VirtualJoystickBunchButtonConfigItem* item)
    : BunchTapWorker(PeriodOfFrequency(ItemOrDefault(item).bunch_frequency), std::nullopt),
      item_(ItemOrDefault(item)) {}

void BunchTapContinueVjoyWorker::Process() {
  Begin([this] { TimerOutTime(); });
}

void BunchTapContinueVjoyWorker::TimerOutTime() { Beat(); }

void BunchTapContinueVjoyWorker::Stop(const QString& device, const QString& text, int scancode) {
  const bool is_own_key = device == item_.key.device && scancode == item_.key.scancode;
  if (!is_own_key && text != kForceStop) return;
  StopTimer();
  EmitFinished();
}

void BunchTapContinueVjoyWorker::EmitPressed() { Q_EMIT BunchTapPressed(item_.map_text); }
void BunchTapContinueVjoyWorker::EmitReleased() { Q_EMIT BunchTapReleased(item_.map_text); }
void BunchTapContinueVjoyWorker::EmitFinished() { Q_EMIT BunchTapFinished(item_.map_text); }

}  // namespace taviinputmanager
