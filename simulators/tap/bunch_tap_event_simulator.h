// Rapid taps on one point.
#ifndef SIMULATORS_TAP_BUNCH_TAP_EVENT_SIMULATOR_H_
#define SIMULATORS_TAP_BUNCH_TAP_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

// In mode "Continue" a press starts a run and the release ends it; in any other mode the release starts a run of a
// fixed number of taps. The runs keep time on threads of their own; contacts are pressed and released here, on the main
// thread.
//
// There is no list of runs: each stop goes to all of them, with the key, and each run recognizes its own. A key that is
// pressed twice has two runs, which one release ends.
class BunchTapEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static BunchTapEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Ends the runs of held keys; with `release_one_off` the one-off runs too.
  void Reset(bool release_one_off);

 Q_SIGNALS:
  void StopBunchTap(const QString& device, const QString& text, int scancode);
  void StopOneOffBunchTap();

 private Q_SLOTS:
  void OnBunchTapPressed(double x, double y);
  void OnBunchTapReleased(double x, double y);
  void OnBunchTapFinished(double x, double y);

 private:
  friend class BunchTapRun;

  BunchTapEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_TAP_BUNCH_TAP_EVENT_SIMULATOR_H_
