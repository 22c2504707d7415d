// The state of one display of the guest, computed from its lines: what is down, what is shown, what was typed.
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
  bool used = false;   // a line about it has arrived
  QPointF left_stick;  // -1 (left, up) to 1
  QPointF right_stick;
  int left_trigger = 0;
  int right_trigger = 0;
  QPoint hat;  // -1 (left, up), 0 or 1
  QSet<int> buttons;
  std::optional<QPoint> touchpad;  // touch coordinates of the position where it was touched
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
  QString text;  // as a focused text field would contain it
  GuestGamepad gamepad;
};

// A guest has 26 slots, 0 to 25, for the contacts on its screen.
constexpr int kGuestSlotCount = 26;

// Not bound to a thread.
class GuestModel {
 public:
  explicit GuestModel(int display) : display_(display) {}

  // Each applies a line without its end and returns whether it was understood. A line for another display is understood
  // and changes nothing; text lines go to the display that has the focus, which is this one.
  bool ApplyEvent(const QString& event);
  bool ApplyText(const QString& line);
  // A parsed line of either kind, which must be for this display.
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
