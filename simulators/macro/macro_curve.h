// The contact that a macro draws a curve with.
#ifndef SIMULATORS_MACRO_MACRO_CURVE_H_
#define SIMULATORS_MACRO_MACRO_CURVE_H_

#include <QString>
#include <QStringList>

#include "core/line_buffer.h"

namespace taviinputmanager {

// Creates commands and sends nothing; an empty command means that there is nothing to send. The contact is an entry of
// MacroSlotManager that is taken by number. Main thread only.
//
// A curve of three points; `default` is the default sleep of the macro's list:
//
//   curve_rel     first sleep    default    last sleep
//   point 1 ------- point 2 ------ point 3 ----- up, next command
//   until_release_cmd:             point 3, next command ... curve_release, release_all or the macro's end: up
//
// Sleeps that are not set have the default duration. The two sleeps and until_release_cmd apply to one curve.
class MacroCurve {
 public:
  void SetFirstSleep(int ms) { first_sleep_ = ms; }
  void SetLastSleep(int ms);
  // Holds the last point.
  void SetUntilRelease() { until_release_ = true; }

  // Takes a contact for a list of points. Returns false and changes nothing if a curve is in progress or no contact is
  // left.
  bool Start(const QString& list);
  // Presses the contact on the next point, or moves it there. Empty if that is not a point.
  LineBuffer BuildNextPress();
  // Releases the contact and resets the curve. Empty without a curve.
  LineBuffer BuildRelease();
  // Resets the curve and its settings; the contact stays down.
  void Clear() { *this = MacroCurve(); }

  bool HasNextPoint() const { return index_ < points_.size(); }
  // No point is left and none is held.
  bool IsPlayedOut() const { return !HasNextPoint() && !points_.isEmpty() && !until_release_; }
  bool IsHeldAtEnd() const { return until_release_; }

  // In ms; `fallback` if none is set.
  int GetFirstSleep(int fallback) const { return SleepOr(first_sleep_, fallback); }
  int GetLastSleep(int fallback) const { return SleepOr(last_sleep_, fallback); }

 private:
  static int SleepOr(int ms, int fallback);

  int index_ = 0;  // of the next point
  int slot_ = -1;  // no curve
  int first_sleep_ = 0;
  int last_sleep_ = 0;
  bool until_release_ = false;
  QStringList points_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_CURVE_H_
