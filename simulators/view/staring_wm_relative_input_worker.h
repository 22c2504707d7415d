// The view finger of the captured mouse.
#ifndef SIMULATORS_VIEW_STARING_WM_RELATIVE_INPUT_WORKER_H_
#define SIMULATORS_VIEW_STARING_WM_RELATIVE_INPUT_WORKER_H_

#include <QPointF>
#include <QTimer>

#include "core/event_handler.h"
#include "simulators/relative_counts.h"
#include "simulators/view/staring_range.h"

namespace tavikeymapmanager {
struct StaringConfigItem;
}

namespace taviinputmanager {

class MouseSlotManager;

// Turns relative counts into one held finger, which is MouseSlotManager's while view control is on. Owns the view
// sensitivity, which the fire finger and aimed casts follow too. Main thread.
//
//   event 1     events 2 .. n          edge of the range             next event that is let through
//   press on    centre + all counts    lift, or held at the edge     press on the centre again
//   the centre  since the press        when it never lifts           counts from 0
//
// Events between two sends are summed up and sent by the next one that comes late enough. Counts that arrive while the
// finger is up are lost with its next press.
class StaringWmRelativeInputWorker : public EventHandler {
  Q_OBJECT

 public:
  static StaringWmRelativeInputWorker* GetInstance() {
    static StaringWmRelativeInputWorker instance;
    return &instance;
  }

  // View control begins: lays out the range and takes the sensitivities of `item`; a period of its own lifts the finger
  // from then on, if the item has one. Puts nothing down. Nothing for null.
  void StartStaring(const tavikeymapmanager::StaringConfigItem* item);
  void StopAutoReset();
  // Counts of one host event. `item` is read before the host is asked or sent anything: view control may end, and the
  // item go, from inside. Nothing for null.
  void OnStaringRelativeInput(const tavikeymapmanager::StaringConfigItem* item, int dx, int dy);
  // Lifts the finger outside the range or moves it back in, and sends what it is now. The range is that of the last
  // StartStaring; `item` says what becomes of a finger outside. Nothing for null.
  void ApplyStaringRange(const tavikeymapmanager::StaringConfigItem* item);

  // Factors on the view sensitivity of each axis: 0 is one per cent, 1 the item's own value, 2 two hundred per cent.
  // They hold for all keymaps to come.
  void SetHandyStaringSensitivity(double x, double y);
  // Works out what GetEffectiveSensitivity tells, from the item's sensitivities and the factors.
  void UpdateEffectiveSensitivity();
  // Display pixels a count, by axis; 0 until view control was first on.
  const QPointF& GetEffectiveSensitivity() const { return effective_sensitivity_; }

 public Q_SLOTS:
  // Lifts the finger; it comes back on the centre, the press interval later at the earliest.
  void OnPerioidAutoResetTimerOutOfTime();

 private:
  StaringWmRelativeInputWorker();
  ~StaringWmRelativeInputWorker() override;

  MouseSlotManager* const finger_;
  RelativeCounts accumulated_;  // since the finger was last put on the centre
  qint64 last_send_ms_;         // since the epoch
  StaringRange range_;
  QPointF effective_sensitivity_;
  QPointF base_sensitivity_;  // per cent, by axis, as in the item
  double handy_factor_x_ = 1.0;
  double handy_factor_y_ = 1.0;
  QTimer auto_reset_timer_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_STARING_WM_RELATIVE_INPUT_WORKER_H_
