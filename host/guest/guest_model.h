// What one display of the guest has down, shown and typed, made from the lines that it is sent.
#ifndef HOST_GUEST_GUEST_MODEL_H_
#define HOST_GUEST_GUEST_MODEL_H_

#include <optional>

#include <QMap>
#include <QPoint>
#include <QPointF>
#include <QSet>
#include <QString>

namespace tavi {

struct GuestLine;

struct GuestContact {
  int tracking_id = 0;
  QPoint point;  // touch coordinates
};

struct GuestGamepad {
  bool used = false;   // a line of it has come
  QPointF left_stick;  // -1 (left, up) to 1
  QPointF right_stick;
  int left_trigger = 0;
  int right_trigger = 0;
  QPoint hat;  // -1 (left, up), 0 or 1
  QSet<int> buttons;
  std::optional<QPoint> touchpad;  // where it is touched, touch coordinates
  bool touchpad_pressed = false;
};

struct GuestWheelTurn {
  QPoint point;       // touch coordinates
  double amount = 0;  // positive: away from the user
  int count = 0;      // turns so far
};

struct GuestState {
  QMap<int, GuestContact> contacts;  // by slot
  QSet<int> held_keys;               // guest key codes; mouse buttons are keys
  std::optional<QPoint> pointer;     // touch coordinates
  GuestWheelTurn wheel;
  QString text;  // as a focused text field would hold it
  GuestGamepad gamepad;
};

// A guest has 26 slots, 0 to 25, for the fingers on its screen.
constexpr int kGuestSlotCount = 26;

// Not bound to a thread.
class GuestModel {
 public:
  explicit GuestModel(int display) : display_(display) {}

  // Each takes a line without its end and tells whether it was understood. A line for another display is understood and
  // changes nothing; texts go to whatever display has the focus, which is this one.
  bool ApplyEvent(const QString& event);
  bool ApplyText(const QString& line);
  // A line of either kind that was taken apart, and is for this display.
  bool Apply(const GuestLine& line);

  const GuestState& state() const { return state_; }

 private:
  bool ApplyTouch(const GuestLine& line);
  bool ApplyGamepad(const GuestLine& line);
  bool PutContact(int slot, int tracking_id, const QPoint& point);
  bool PressContacts(const GuestLine& line);
  bool ReleaseContacts(const GuestLine& line);
  bool ControlText(const QString& name);

  const int display_;
  GuestState state_;
};

}  // namespace tavi

#endif  // HOST_GUEST_GUEST_MODEL_H_
