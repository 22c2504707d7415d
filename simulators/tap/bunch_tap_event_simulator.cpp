#include "simulators/tap/bunch_tap_event_simulator.h"

#include "core/input_logger.h"
#include "keymap/bunch_click_config_item.h"
#include "simulators/bunch_tap_run.h"
#include "simulators/tap/bunch_tap_continue_worker.h"
#include "simulators/tap/bunch_tap_one_off_worker.h"
#include "slots/multipoint_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::BunchClickConfigItem;
using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
namespace keywords = tavikeymapmanager::keywords;

BunchTapEventSimulator* BunchTapEventSimulator::GetInstance() {
  static BunchTapEventSimulator instance;
  return &instance;
}

void BunchTapEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* bunch = dynamic_cast<const BunchClickConfigItem*>(item);
  if (!bunch || bunch->bunch_mode != keywords::kBunchContinue) return;
  BunchTapRun::StartContinue(this, new BunchTapContinueWorker(bunch));
}

void BunchTapEventSimulator::Release(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* bunch = dynamic_cast<const BunchClickConfigItem*>(item);
  if (!bunch) return;
  if (bunch->bunch_mode == keywords::kBunchContinue) {
    Q_EMIT StopBunchTap(bunch->key.device, bunch->key.text, bunch->key.scancode);
  } else {
    BunchTapRun::StartOneOff(this, new BunchTapOneOffWorker(bunch));
  }
}

void BunchTapEventSimulator::Reset(bool release_one_off) {
  Q_EMIT StopBunchTap(QString(), BunchTapWorker::kForceStop, tavikeymapmanager::kUnsetCode);
  if (release_one_off) Q_EMIT StopOneOffBunchTap();
}

void BunchTapEventSimulator::OnBunchTapPressed(double x, double y) {
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (!pool->PressAt(x, y)) return;  // every contact of the pool is down; the next press of the run tries again
  SendEvent(pool->UpdateLine());
}

void BunchTapEventSimulator::OnBunchTapReleased(double x, double y) {
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (!pool->ReleaseAt(x, y)) return;  // no contact was ever pressed at this point
  SendEvent(pool->UpdateLine());
}

void BunchTapEventSimulator::OnBunchTapFinished(double x, double y) {
  InputLogger* log = InputLogger::GetInstance();
  if (log->IsDebugOn()) log->Debug("on bunch tap finished");
  OnBunchTapReleased(x, y);
}

}  // namespace taviinputmanager
