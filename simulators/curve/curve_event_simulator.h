// A finger that follows a stored curve.
#ifndef SIMULATORS_CURVE_CURVE_EVENT_SIMULATOR_H_
#define SIMULATORS_CURVE_CURVE_EVENT_SIMULATOR_H_

#include <QList>
#include <QMutex>

#include "simulators/event_simulator.h"

namespace tavikeymapmanager {
struct CurveConfigItem;
}

namespace taviinputmanager {

class CurveAsyncWorker;
class WorkerThread;

// One finger for all curves: a second curve takes it and its origin over from the first.
//
// A run of a held key leaves the finger on the last point, for the release to lift. A run that a release or a reset
// took off the list presses no further point, whatever is on its way from it, and its end lifts the finger.
class CurveEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static CurveEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // One run of the curve for a wheel notch, which lifts the finger at its end. Nothing while any run is alive.
  virtual void Wheel(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  // Ends every run and lifts the finger.
  void Reset();

 Q_SIGNALS:
  void StopCurve(const QString& device, int scancode);

 private Q_SLOTS:
  void OnCurvePointPressed(double rel_x, double rel_y);
  void OnCurveFinished();

 private:
  CurveEventSimulator() = default;

  // `lifts_at_end`: the natural end of the list lifts the finger too.
  void StartRun(const tavikeymapmanager::CurveConfigItem& item, bool lifts_at_end);
  void EndRun(CurveAsyncWorker* worker, WorkerThread* run, bool lifts);
  // False when it was taken off already.
  bool TakeOffList(CurveAsyncWorker* worker);
  bool IsLive(CurveAsyncWorker* worker);
  bool HasRuns();

  QMutex mutex_;                      // guards workers_
  QList<CurveAsyncWorker*> workers_;  // not owned; each is alive for as long as it stands here
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CURVE_CURVE_EVENT_SIMULATOR_H_
