// The two fingers of one pinch of a zoom key.
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
// Lives for one run, on a thread of its own; touches its own fields alone, asks the display geometry, and reports by
// queued signals.
class ZoomOneOffWorker : public QObject {
  Q_OBJECT

 public:
  // Both slots were taken from the macro pool for this run. Takes a copy of `item`; null stands for a default item.
  ZoomOneOffWorker(const tavikeymapmanager::ZoomConfigItem* item, int positive_slot_id, int negative_slot_id);

 public Q_SLOTS:
  // A key without direction or speed moves nothing: such a run ends by OneOffStop only.
  void OneOffProcess();
  void OneOffTimerOutTime();
  void OneOffStop();

 Q_SIGNALS:
  // A ready line with both contacts.
  void OneOffZoomPressed(const QString& cmd);
  // After the last move, and again at each further one and at each stop.
  void OneOffZoomFinished(int positive_slot_id, int negative_slot_id);

 private:
  QString BuildCommand() const;

  const tavikeymapmanager::ZoomConfigItem item_;
  QTimer* timer_ = nullptr;  // a child, made where the run is
  const int positive_slot_id_;
  const int negative_slot_id_;
  QPointF positive_step_;  // fractions of the display; the other finger mirrors it
  QPointF positive_point_;
  QPointF negative_point_;
  int count_ = 0;
  int steps_ = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_ZOOM_ONE_OFF_WORKER_H_
