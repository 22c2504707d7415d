// The finger of one slide of a wheel key.
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
// Lives for one run, on a thread of its own; touches its own fields alone and reports by queued signals.
class WheelOneOffWorker : public QObject {
  Q_OBJECT

 public:
  // `slot_id` was taken from the tap pool for this run. Takes a copy of `item`; null stands for a default item.
  WheelOneOffWorker(const tavikeymapmanager::WheelConfigItem* item, int slot_id);

 public Q_SLOTS:
  // A key without direction or speed moves nothing: such a run ends by OneOffStop only.
  void OneOffProcess();
  void OneOffTimerOutTime();
  void OneOffStop();

 Q_SIGNALS:
  // Fractions of the display.
  void OneOffWheelPressed(int slot_id, double x, double y);
  // After the last move, and again at each further one and at each stop.
  void OneOffWheelFinished(int slot_id);

 private:
  const tavikeymapmanager::WheelConfigItem item_;
  QTimer* timer_ = nullptr;  // a child, made where the run is
  int count_ = 0;
  int steps_ = 0;
  const int slot_id_;
  QPointF delta_;
  QPointF position_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_WHEEL_ONE_OFF_WORKER_H_
