// Taps on one point while a key is held.
#ifndef SIMULATORS_TAP_BUNCH_TAP_CONTINUE_WORKER_H_
#define SIMULATORS_TAP_BUNCH_TAP_CONTINUE_WORKER_H_

#include "keymap/bunch_click_config_item.h"
#include "simulators/bunch_tap_worker.h"

namespace taviinputmanager {

class BunchTapContinueWorker : public BunchTapWorker {
  Q_OBJECT

 public:
  // Copies `item`; null means a default item.
  explicit BunchTapContinueWorker(const tavikeymapmanager::BunchClickConfigItem* item);

 public Q_SLOTS:
  void Process();
  // Every run gets the release of every key; only the item's own key, or kForceStop, ends it.
  void Stop(const QString& device, const QString& text, int scancode);
  void TimerOutTime();

 Q_SIGNALS:
  // Fractions of the display.
  void BunchTapPressed(double x, double y);
  void BunchTapReleased(double x, double y);
  // Emitted again at each further stop. The contact may be up or down.
  void BunchTapFinished(double x, double y);

 private:
  bool IsStoppedBy(const QString& device, const QString& text, int scancode) const;
  void EmitPressed() override;
  void EmitReleased() override;
  void EmitFinished() override;

  const tavikeymapmanager::BunchClickConfigItem item_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_TAP_BUNCH_TAP_CONTINUE_WORKER_H_
