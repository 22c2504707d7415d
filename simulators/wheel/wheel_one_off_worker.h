// The contact of one swipe of a wheel key.
#ifndef SIMULATORS_WHEEL_WHEEL_ONE_OFF_WORKER_H_
#define SIMULATORS_WHEEL_WHEEL_ONE_OFF_WORKER_H_

#include <QObject>
#include <QPointF>

#include "keymap/wheel_config_item.h"

class QTimer;

namespace taviinputmanager {

//   OneOffProcess   8 ms      8 ms              8 ms
//   -------------- press --- move --- ... --- move, finished          duration_ms / 8 + 1 ticks
//
// Exists for one run, on a thread of its own; uses only its own fields and reports by queued signals.
class WheelOneOffWorker : public QObject {
  Q_OBJECT

 public:
  // `slot_id` was taken from the tap pool for this run. Copies `item`; null means a default item.
  WheelOneOffWorker(const tavikeymapmanager::WheelConfigItem* item, int slot_id);

 public Q_SLOTS:
  // A key without direction or speed moves nothing: such a run is only ended by OneOffStop.
  void OneOffProcess();
  void OneOffTimerOutTime();
  void OneOffStop();

 Q_SIGNALS:
  // Fractions of the display.
  void OneOffWheelPressed(int slot_id, double x, double y);
  // Emitted after the last move, and again at each further one and at each stop.
  void OneOffWheelFinished(int slot_id);

 private:
  const tavikeymapmanager::WheelConfigItem item_;
  QTimer* timer_ = nullptr;  // a child, created on the run's thread
  int count_ = 0;
  int steps_ = 0;
  const int slot_id_;
  QPointF delta_;
  QPointF position_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_WHEEL_ONE_OFF_WORKER_H_
