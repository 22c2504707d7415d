// The view contact of the captured mouse.
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
// Events between two lines are added up and sent with the next one that is due. Counts that arrive while the contact is
// up are lost at its next press.
class StaringWmRelativeInputWorker : public EventHandler {
  Q_OBJECT

 public:
  static StaringWmRelativeInputWorker* GetInstance() {
    static StaringWmRelativeInputWorker instance;
    return &instance;
  }

  // View control begins: computes the range and takes the sensitivities of `item`; from then on a timer releases the
  // contact, if the item has a period. Presses nothing. Does nothing for null.
  void StartStaring(const tavikeymapmanager::StaringConfigItem* item);
  void StopAutoReset();
  // Counts of one host event. Reads `item` before it calls the host, during which view control may end and the item be
  // deleted. Does nothing for null.
  void OnStaringRelativeInput(const tavikeymapmanager::StaringConfigItem* item, int dx, int dy);
  // Releases the contact outside the range or moves it back in, and sends its state. The range is that of the last
  // StartStaring; `item` says what happens to a contact outside. Does nothing for null.
  void ApplyStaringRange(const tavikeymapmanager::StaringConfigItem* item);

  // Factors for the view sensitivity of each axis: 0 is one per cent, 1 the item's own value, 2 two hundred per cent.
  // They apply to all later keymaps.
  void SetHandyStaringSensitivity(double x, double y);
  // Computes GetEffectiveSensitivity from the item's sensitivities and the factors.
  void UpdateEffectiveSensitivity();
  // Display pixels per count, for each axis; 0 until view control was first on.
  const QPointF& GetEffectiveSensitivity() const { return effective_sensitivity_; }

 public Q_SLOTS:
  // Releases the contact; it is pressed again at the centre, the press interval later at the earliest.
  void OnPerioidAutoResetTimerOutOfTime();

 private:
  StaringWmRelativeInputWorker();
  ~StaringWmRelativeInputWorker() override;

  MouseSlotManager* const finger_;
  RelativeCounts accumulated_;  // since the finger was last put on the centre
  qint64 last_send_ms_;         // since the epoch
  StaringRange range_;
  QPointF effective_sensitivity_;
  QPointF base_sensitivity_;  // per cent, for each axis, from the item
  double handy_factor_x_ = 1.0;
  double handy_factor_y_ = 1.0;
  QTimer auto_reset_timer_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_STARING_WM_RELATIVE_INPUT_WORKER_H_
