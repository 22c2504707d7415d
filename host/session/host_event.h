// Host events in readable form.
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

  // In a run of these only the last one matters: a moving pointer, a repeating key.
  bool IsRepeatOf(const HostEvent& before) const;

  Kind kind = Kind::kOther;
  QString text;                      // "press", "move 0.42, 0.36"
  QString code;                      // the native code; empty if there is none
  tavikeymapmanager::ConfigKey key;  // the key that items of a keymap are matched against; unset if the event has none
  std::optional<QPointF> place;      // fractions of the display
  bool repeats = false;              // a held key
};

// From an event as the library gets it: positions are pixels of LiveHost::ViewSize.
HostEvent DescribeEvent(const QEvent& event);
HostEvent DescribeJoystickEvent(const QEvent& event);
// Counts of a captured mouse.
HostEvent DescribeMovement(int dx, int dy);
// What is down is released for another reason than an event.
HostEvent DescribeLettingGo();

// The part of it that an item of a keymap can use: "key: W", "point: [0.42, 0.36]", both, or nothing.
QString KeymapFields(const HostEvent& event);

}  // namespace tavi

#endif  // HOST_SESSION_HOST_EVENT_H_
