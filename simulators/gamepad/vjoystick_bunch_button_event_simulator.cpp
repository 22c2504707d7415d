#include "simulators/gamepad/vjoystick_bunch_button_event_simulator.h"

#include "keymap/virtual_joystick_bunch_button_config_item.h"
#include "simulators/bunch_tap_run.h"
#include "simulators/gamepad/bunch_tap_continue_vjoy_worker.h"
#include "simulators/gamepad/bunch_tap_one_off_vjoy_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;
namespace keywords = tavikeymapmanager::keywords;

VJoystickBunchButtonEventSimulator* VJoystickBunchButtonEventSimulator::GetInstance() {
  static VJoystickBunchButtonEventSimulator instance;
  return &instance;
}

void VJoystickBunchButtonEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* button = dynamic_cast<const VirtualJoystickBunchButtonConfigItem*>(item);
  if (!button) return;  // not such a button
  if (!button->bunch_enabled) return Tell(button->map_text, true);
  if (button->bunch_mode != keywords::kBunchContinue) return;  // starts when the key is released
  BunchTapRun::StartContinue(this, new BunchTapContinueVjoyWorker(button));
}

void VJoystickBunchButtonEventSimulator::Release(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* button = dynamic_cast<const VirtualJoystickBunchButtonConfigItem*>(item);
  if (!button) return;  // not such a button
  if (!button->bunch_enabled) return Tell(button->map_text, false);
  if (button->bunch_mode == keywords::kBunchContinue) {
    Q_EMIT StopBunchTap(button->key.device, button->key.text, button->key.scancode);
  } else {
    BunchTapRun::StartOneOff(this, new BunchTapOneOffVjoyWorker(button));
  }
}

void VJoystickBunchButtonEventSimulator::Reset(bool release_one_off) {
  Q_EMIT StopBunchTap(QString(), BunchTapWorker::kForceStop, tavikeymapmanager::kUnsetCode);
  if (release_one_off) Q_EMIT StopOneOffBunchTap();
}

void VJoystickBunchButtonEventSimulator::OnBunchTapPressed(const QString& text) { Tell(text, true); }

void VJoystickBunchButtonEventSimulator::OnBunchTapReleased(const QString& text) { Tell(text, false); }

void VJoystickBunchButtonEventSimulator::OnBunchTapFinished(const QString& text) { Tell(text, false); }

void VJoystickBunchButtonEventSimulator::Tell(QString text, bool press) {
  Q_EMIT sigVJoystickButtonPressOrRelease(text, press);
}

}  // namespace taviinputmanager
