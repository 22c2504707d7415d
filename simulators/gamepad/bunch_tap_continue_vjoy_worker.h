// Presses a virtual gamepad's button rapidly while a key is held.
#ifndef SIMULATORS_GAMEPAD_BUNCH_TAP_CONTINUE_VJOY_WORKER_H_
#define SIMULATORS_GAMEPAD_BUNCH_TAP_CONTINUE_VJOY_WORKER_H_

#include "keymap/virtual_joystick_bunch_button_config_item.h"
#include "simulators/bunch_tap_worker.h"

namespace taviinputmanager {

class BunchTapContinueVjoyWorker : public BunchTapWorker {
  Q_OBJECT

 public:
  // Copies `item`; null means a default item.
  explicit BunchTapContinueVjoyWorker(const tavikeymapmanager::VirtualJoystickBunchButtonConfigItem* item);

 public Q_SLOTS:
  void Process();
  // Every run gets the release of every key; only the item's own device and scan code, or kForceStop, end it.
  void Stop(const QString& device, const QString& text, int scancode);
  void TimerOutTime();

 Q_SIGNALS:
  void BunchTapPressed(const QString& map_text);
  void BunchTapReleased(const QString& map_text);
  // Emitted again at each further stop. The button may be up or down.
  void BunchTapFinished(const QString& map_text);

 private:
  void EmitPressed() override;
  void EmitReleased() override;
  void EmitFinished() override;

  const tavikeymapmanager::VirtualJoystickBunchButtonConfigItem item_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_BUNCH_TAP_CONTINUE_VJOY_WORKER_H_
