#include "simulators/tap/bunch_tap_one_off_worker.h"

#include "simulators/item_or_default.h"

namespace taviinputmanager {

using tavikeymapmanager::BunchClickConfigItem;

BunchTapOneOffWorker::BunchTapOneOffWorker(const BunchClickConfigItem* item)
    : BunchTapWorker(kOneOffPeriodMs, ItemOrDefault(item).bunch_count), item_(ItemOrDefault(item)) {}

void BunchTapOneOffWorker::OneOffProcess() {
  Begin([this] { OneOffTimerOutTime(); });
}

void BunchTapOneOffWorker::OneOffTimerOutTime() { Beat(); }

void BunchTapOneOffWorker::Stop() { EmitFinished(); }

void BunchTapOneOffWorker::EmitPressed() { Q_EMIT OneOffBunchTapPressed(item_.rel_x, item_.rel_y); }
void BunchTapOneOffWorker::EmitReleased() { Q_EMIT OneOffBunchTapReleased(item_.rel_x, item_.rel_y); }
void BunchTapOneOffWorker::EmitFinished() { Q_EMIT OneOffBunchTapFinished(item_.rel_x, item_.rel_y); }

}  // namespace taviinputmanager
