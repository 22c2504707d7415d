// A wheel movement as a two-finger pinch.
#ifndef SIMULATORS_WHEEL_QT_WHEEL_EVENT_ZOOM_WORKER_H_
#define SIMULATORS_WHEEL_QT_WHEEL_EVENT_ZOOM_WORKER_H_

#include <QPoint>

#include "core/event_handler.h"

class QTimer;
class QWheelEvent;

namespace tavikeymapmanager {
struct KeymapConfig;
}

namespace taviinputmanager {

//   turn     first_interval  tick       tick   tick     release_wait
//   press ------- move ------ move ... - move -- rest ------------- release     notch_ticks moves a notch
//   a turn on the way, also in the rest, goes on in the same pinch
//   a finger that comes to the end of its way ends the pinch at once
//
// The contacts are on a line through the pointer, at `angle_degrees` from the horizontal. Main thread.
class QtWheelEventZoomWorker : public EventHandler {
  Q_OBJECT

 public:
  static QtWheelEventZoomWorker* GetInstance() {
    static QtWheelEventZoomWorker instance;
    return &instance;
  }

  // `config` may be null.
  virtual void OnWheel(QWheelEvent* event, tavikeymapmanager::KeymapConfig* config);
  bool IsRunning() const;

 public Q_SLOTS:
  void TimerOutTime();

 private:
  QtWheelEventZoomWorker();

  void LoadSettings(const tavikeymapmanager::KeymapConfig* config);
  void SetBounds(const QPoint& center);
  void StartPinch(const QPoint& center);
  void MoveApart();
  void MoveTogether();
  void MoveFingers(int direction);
  bool IsWithinBounds() const;
  void GoOn();
  void EndPinch();
  void Rest();
  // From the pointer to contact a, at a distance of `units`; contact b is its mirror image.
  QPoint ArmOf(double units) const;
  int Unit() const;
  void SendPinch();
  void SendRelease();

  QTimer* timer_;  // a child
  int ticks_ = 0;  // remaining moves; positive is apart
  QPoint step_;    // pixels per move, for contact b
  QPoint finger_a_;
  QPoint finger_b_;
  QPoint inner_a_;  // the ends of the path of contact a, near and far
  QPoint outer_a_;
  bool finished_ = false;  // the next tick releases
  int release_wait_ms_ = 0;
  int first_interval_ms_ = 16;
  int tick_ms_ = 16;
  int notch_ticks_ = 8;
  int spread_ = 20;                 // units from the pointer to a contact at rest
  double unit_fraction_ = 0.00625;  // relative to the display's longer side
  double angle_degrees_ = 45.0;
  bool swap_fingers_ = false;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_QT_WHEEL_EVENT_ZOOM_WORKER_H_
