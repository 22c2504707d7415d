#include "simulators/workers/bunch_tap_one_off_vjoy_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;

BunchTapOneOffVjoyWorker::BunchTapOneOffVjoyWorker(const VirtualJoystickBunchButtonConfigItem& item)
    : BunchTapWorker(kOneOffPeriodMs, item.bunch_count), item_(item) {}

void BunchTapOneOffVjoyWorker::OneOffProcess() {
  Begin([this] { OneOffTimerOutTime(); });
}

void BunchTapOneOffVjoyWorker::OneOffTimerOutTime() { Beat(); }

void BunchTapOneOffVjoyWorker::Stop() { EmitFinished(); }

void BunchTapOneOffVjoyWorker::EmitPressed() { Q_EMIT OneOffBunchTapPressed(item_.map_text); }
void BunchTapOneOffVjoyWorker::EmitReleased() { Q_EMIT OneOffBunchTapReleased(item_.map_text); }
void BunchTapOneOffVjoyWorker::EmitFinished() { Q_EMIT OneOffBunchTapFinished(item_.map_text); }

}  // namespace taviinputmanager
