// A fixed number of taps on one point.
#ifndef SIMULATORS_TAP_BUNCH_TAP_ONE_OFF_WORKER_H_
#define SIMULATORS_TAP_BUNCH_TAP_ONE_OFF_WORKER_H_

#include "keymap/bunch_click_config_item.h"
#include "simulators/bunch_tap_worker.h"

namespace taviinputmanager {

// Its timing is fixed: the item's frequency is not used.
class BunchTapOneOffWorker : public BunchTapWorker {
  Q_OBJECT

 public:
  // Copies `item`; null means a default item.
  explicit BunchTapOneOffWorker(const tavikeymapmanager::BunchClickConfigItem* item);

 public Q_SLOTS:
  void OneOffProcess();
  void OneOffTimerOutTime();
  void Stop();

 Q_SIGNALS:
  // Fractions of the display.
  void OneOffBunchTapPressed(double x, double y);
  void OneOffBunchTapReleased(double x, double y);
  // Emitted again at each further stop and half tap. The contact may be up or down.
  void OneOffBunchTapFinished(double x, double y);

 private:
  void EmitPressed() override;
  void EmitReleased() override;
  void EmitFinished() override;

  const tavikeymapmanager::BunchClickConfigItem item_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_TAP_BUNCH_TAP_ONE_OFF_WORKER_H_
