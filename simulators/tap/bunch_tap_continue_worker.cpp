#include "simulators/tap/bunch_tap_continue_worker.h"

#include "simulators/item_or_default.h"

namespace taviinputmanager {

using tavikeymapmanager::BunchClickConfigItem;
using tavikeymapmanager::ConfigKey;
namespace keywords = tavikeymapmanager::keywords;

BunchTapContinueWorker::BunchTapContinueWorker(const BunchClickConfigItem* item)
    : BunchTapWorker(PeriodOfFrequency(ItemOrDefault(item).bunch_frequency), std::nullopt),
      item_(ItemOrDefault(item)) {}

void BunchTapContinueWorker::Process() {
  Begin([this] { TimerOutTime(); });
}

void BunchTapContinueWorker::TimerOutTime() { Beat(); }

void BunchTapContinueWorker::Stop(const QString& device, const QString& text, int scancode) {
  if (!IsStoppedBy(device, text, scancode)) return;
  StopTimer();
  EmitFinished();
}

bool BunchTapContinueWorker::IsStoppedBy(const QString& device, const QString& text, int scancode) const {
  const ConfigKey& key = item_.key;
  const bool is_own_device = device == key.device;
  if (device == keywords::kDeviceKeyboard && is_own_device && scancode == key.scancode) return true;
  if (device == keywords::kDeviceJoystick && is_own_device && text == key.text) return true;
  if (device == keywords::kDeviceMouse && is_own_device && text == key.text) return true;
  return text == kForceStop;
}

void BunchTapContinueWorker::EmitPressed() { Q_EMIT BunchTapPressed(item_.rel_x, item_.rel_y); }
void BunchTapContinueWorker::EmitReleased() { Q_EMIT BunchTapReleased(item_.rel_x, item_.rel_y); }
void BunchTapContinueWorker::EmitFinished() { Q_EMIT BunchTapFinished(item_.rel_x, item_.rel_y); }

}  // namespace taviinputmanager
