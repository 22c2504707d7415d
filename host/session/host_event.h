// An event of the host as people read it.
#ifndef HOST_SESSION_HOST_EVENT_H_
#define HOST_SESSION_HOST_EVENT_H_

#include <optional>

#include <QPointF>
#include <QString>

#include "keymap/config_key.h"

class QEvent;

namespace tavi {

struct HostEvent {
  enum class Kind { kPress, kRelease, kMove, kTurn, kTouch, kStick, kText, kLetGo, kOther };

  // Of many that follow each other only the last says something: a pointer on its way, a key that repeats.
  bool IsRepeatOf(const HostEvent& before) const;

  Kind kind = Kind::kOther;
  QString text;                      // "press", "move 0.42, 0.36"
  QString code;                      // the native code; empty where there is none
  tavikeymapmanager::ConfigKey key;  // what a keymap's items are compared with; not set where no key is meant
  std::optional<QPointF> place;      // fractions of the display
  bool repeats = false;              // a held key
};

// Of an event as the library gets it: places are pixels of LiveHost::ViewSize.
HostEvent DescribeEvent(const QEvent& event);
HostEvent DescribeJoystickEvent(const QEvent& event);
// Counts of a mouse that steers the view.
HostEvent DescribeMovement(int dx, int dy);
// What is down is lifted because of something else than an event.
HostEvent DescribeLettingGo();

// What of it a keymap's item would have: "key: W", "point: [0.42, 0.36]", both, or nothing.
QString KeymapFields(const HostEvent& event);

}  // namespace tavi

#endif  // HOST_SESSION_HOST_EVENT_H_
