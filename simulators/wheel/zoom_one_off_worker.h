// The two contacts of one pinch of a zoom key.
#ifndef SIMULATORS_WHEEL_ZOOM_ONE_OFF_WORKER_H_
#define SIMULATORS_WHEEL_ZOOM_ONE_OFF_WORKER_H_

#include <QObject>
#include <QPointF>
#include <QString>

#include "keymap/zoom_config_item.h"

class QTimer;

namespace taviinputmanager {

//   OneOffProcess   12 ms     12 ms             12 ms
//   -------------- press --- move --- ... --- move, finished          duration_ms / 12 + 1 ticks
//
// Exists for one run, on a thread of its own; uses only its own fields, asks the host for the display's geometry, and
// reports by queued signals.
class ZoomOneOffWorker : public QObject {
  Q_OBJECT

 public:
  // Both slots were taken from the macro pool for this run. Copies `item`; null means a default item.
  ZoomOneOffWorker(const tavikeymapmanager::ZoomConfigItem* item, int positive_slot_id, int negative_slot_id);

 public Q_SLOTS:
  // A key without direction or speed moves nothing: such a run is only ended by OneOffStop.
  void OneOffProcess();
  void OneOffTimerOutTime();
  void OneOffStop();

 Q_SIGNALS:
  // A complete line with both contacts.
  void OneOffZoomPressed(const QString& cmd);
  // Emitted after the last move, and again at each further one and at each stop.
  void OneOffZoomFinished(int positive_slot_id, int negative_slot_id);

 private:
  QString BuildCommand() const;

  const tavikeymapmanager::ZoomConfigItem item_;
  QTimer* timer_ = nullptr;  // a child, created on the run's thread
  const int positive_slot_id_;
  const int negative_slot_id_;
  QPointF positive_step_;  // fractions of the display; the other contact mirrors it
  QPointF positive_point_;
  QPointF negative_point_;
  int count_ = 0;
  int steps_ = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_ZOOM_ONE_OFF_WORKER_H_
