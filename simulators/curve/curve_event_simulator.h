// A contact that follows a stored curve.
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

// All curves share one contact: a second curve takes it and its origin over from the first.
//
// A run of a held key leaves the contact on the last point, and the key's release releases it. A run that a release or
// a reset removed from the list presses no further point, even if some are queued, and its end releases the contact.
class CurveEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static CurveEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // One run of the curve for a wheel notch; its end releases the contact. Nothing while any run exists.
  virtual void Wheel(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  // Ends every run and releases the contact.
  void Reset();

 Q_SIGNALS:
  void StopCurve(const QString& device, int scancode);

 private Q_SLOTS:
  void OnCurvePointPressed(double rel_x, double rel_y);
  void OnCurveFinished();

 private:
  CurveEventSimulator() = default;

  // `lifts_at_end`: the natural end of the list also releases the contact.
  void StartRun(const tavikeymapmanager::CurveConfigItem& item, bool lifts_at_end);
  void EndRun(CurveAsyncWorker* worker, WorkerThread* run, bool lifts);
  // False if it was removed already.
  bool TakeOffList(CurveAsyncWorker* worker);
  bool IsLive(CurveAsyncWorker* worker);
  bool HasRuns();

  QMutex mutex_;                      // guards workers_
  QList<CurveAsyncWorker*> workers_;  // not owned; each exists as long as it is in this list
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CURVE_CURVE_EVENT_SIMULATOR_H_
