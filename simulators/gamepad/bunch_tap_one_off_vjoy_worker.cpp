#include "simulators/gamepad/bunch_tap_one_off_vjoy_worker.h"

#include "simulators/item_or_default.h"

namespace taviinputmanager {

using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;

BunchTapOneOffVjoyWorker::BunchTapOneOffVjoyWorker(const VirtualJoystickBunchButtonConfigItem* item)
    : BunchTapWorker(kOneOffPeriodMs, ItemOrDefault(item).bunch_count), item_(ItemOrDefault(item)) {}

void BunchTapOneOffVjoyWorker::OneOffProcess() {
  Begin([this] { OneOffTimerOutTime(); });
}

void BunchTapOneOffVjoyWorker::OneOffTimerOutTime() { Beat(); }

void BunchTapOneOffVjoyWorker::Stop() { EmitFinished(); }

void BunchTapOneOffVjoyWorker::EmitPressed() { Q_EMIT OneOffBunchTapPressed(item_.map_text); }
void BunchTapOneOffVjoyWorker::EmitReleased() { Q_EMIT OneOffBunchTapReleased(item_.map_text); }
void BunchTapOneOffVjoyWorker::EmitFinished() { Q_EMIT OneOffBunchTapFinished(item_.map_text); }

}  // namespace taviinputmanager
