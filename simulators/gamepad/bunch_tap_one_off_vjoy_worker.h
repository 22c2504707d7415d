// A fixed number of presses of a virtual gamepad's button.
#ifndef SIMULATORS_GAMEPAD_BUNCH_TAP_ONE_OFF_VJOY_WORKER_H_
#define SIMULATORS_GAMEPAD_BUNCH_TAP_ONE_OFF_VJOY_WORKER_H_

#include "keymap/virtual_joystick_bunch_button_config_item.h"
#include "simulators/bunch_tap_worker.h"

namespace taviinputmanager {

// Its timing is fixed: the item's frequency is not used.
class BunchTapOneOffVjoyWorker : public BunchTapWorker {
  Q_OBJECT

 public:
  // Copies `item`; null means a default item.
  explicit BunchTapOneOffVjoyWorker(const tavikeymapmanager::VirtualJoystickBunchButtonConfigItem* item);

 public Q_SLOTS:
  void OneOffProcess();
  void OneOffTimerOutTime();
  void Stop();

 Q_SIGNALS:
  void OneOffBunchTapPressed(const QString& map_text);
  void OneOffBunchTapReleased(const QString& map_text);
  // Emitted again at each further stop and half tap. The button may be up or down.
  void OneOffBunchTapFinished(const QString& map_text);

 private:
  void EmitPressed() override;
  void EmitReleased() override;
  void EmitFinished() override;

  const tavikeymapmanager::VirtualJoystickBunchButtonConfigItem item_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_BUNCH_TAP_ONE_OFF_VJOY_WORKER_H_
