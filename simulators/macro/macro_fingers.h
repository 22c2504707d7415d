// The contacts that a macro's commands press by point.
#ifndef SIMULATORS_MACRO_MACRO_FINGERS_H_
#define SIMULATORS_MACRO_MACRO_FINGERS_H_

#include <QPointF>
#include <QString>
#include <QStringList>

#include "core/line_buffer.h"
#include "simulators/macro/macro_points.h"

namespace taviinputmanager {

// Creates commands and sends nothing; an empty command means that there is nothing to send. The contacts are entries of
// MacroSlotManager, which all macros share: a contact is identified by its point, so one macro may release another's.
// Main thread only.
class MacroFingers {
 public:
  // One line with a contact for each point of the list that gets a slot.
  LineBuffer Press(const MacroPoints& list);
  LineBuffer Press(const QString& list) { return Press(MacroPoints(list)); }
  // One line with a slot for each point of the list that holds one. "mouse" is the point of the last press there,
  // wherever the pointer is now.
  LineBuffer Release(const MacroPoints& list);
  LineBuffer Release(const QString& list) { return Release(MacroPoints(list)); }
  // Whatever the macros hold, including curves and virtual pointers.
  static LineBuffer ReleaseAll();

  // A list split in two: the points to press, and those to release because they are down.
  struct Halves {
    QString press;
    QString release;
  };
  Halves Split(const MacroPoints& list) const;
  Halves Split(const QString& list) const { return Split(MacroPoints(list)); }

  // Releases presses of a single point that are still down at the end of the macro. A list of several points stays.
  LineBuffer ReleasePressed();

 private:
  void Remember(const QString& list);
  QPointF TakeReleasePoint(const MacroPoint& element);
  LineBuffer ReleaseElements(const QVector<MacroPoint>& elements);

  QPointF mouse_point_;         // of the last press at "mouse"; null if none is held
  QStringList pressed_points_;  // the list of each press, as a whole; of equal lists, as many as can matter
  QString full_points_;         // the last list found to be there that often
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_FINGERS_H_
