// The timing of one run of a curve.
#ifndef SIMULATORS_CURVE_CURVE_ASYNC_WORKER_H_
#define SIMULATORS_CURVE_CURVE_ASYNC_WORKER_H_

#include <QObject>

#include "keymap/curve_config_item.h"
#include "simulators/curve/curve_points.h"

class QTimer;

namespace taviinputmanager {

//   Process   first delay     8 ms           8 ms             8 ms
//   ------------------ point 1 --- point 2 ... --- finished (false) --- finished (false) ...   Stop: finished (true)
//
// A bad entry presses nothing and takes its time like any other. Exists for one run, on a thread of its own, until that
// run is quit; uses only its own fields and reports by queued signals.
class CurveAsyncWorker : public QObject {
  Q_OBJECT

 public:
  // Main thread: sets the origin of the curve's contact to the item's point. Copies `item`; null means a default item.
  explicit CurveAsyncWorker(const tavikeymapmanager::CurveConfigItem* item);

  // Any thread: the item's key never changes.
  bool HasKey(const QString& device, int scancode) const;
  const tavikeymapmanager::ConfigKey& GetKey() const { return item_.key; }

 public Q_SLOTS:
  void Process();
  // Ends the run of this key, and no other.
  void Stop(const QString& device, int scancode);
  void TimerOutTime();

 Q_SIGNALS:
  // Offsets from the origin, as fractions of the display.
  void CurvePointPressed(double x, double y);
  // False at the end of the list, and at each further tick until the run is quit. True at each stop.
  void CurveFinished(bool forceStop);  // NOLINT(readability-identifier-naming)

 private:
  const tavikeymapmanager::CurveConfigItem item_;
  const CurvePoints points_;
  QTimer* timer_ = nullptr;  // a child, created on the run's thread
  int count_ = 0;            // entries so far
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CURVE_CURVE_ASYNC_WORKER_H_
