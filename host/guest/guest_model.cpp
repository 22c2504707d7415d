#include "host/guest/guest_model.h"

#include "host/guest/guest_line.h"

namespace tavi {

using Kind = GuestLine::Kind;

namespace {

constexpr int kFieldsOfContact = 4;  // slot, tracking id, x, y
constexpr double kStickUnit = 1e6;

bool IsSlot(int number) { return number >= 0 && number < kGuestSlotCount; }

QPointF StickOf(const GuestLine& line) { return {line.numbers[0] / kStickUnit, line.numbers[1] / kStickUnit}; }

void SetHeld(QSet<int>* held, int code, bool down) {
  if (down) {
    held->insert(code);
  } else {
    held->remove(code);
  }
}

// A character outside the basic multilingual plane is two units.
void RemoveLastCharacter(QString* text) {
  const int size = text->size();
  const bool is_pair = size > 1 && text->at(size - 1).isLowSurrogate() && text->at(size - 2).isHighSurrogate();
  text->chop(is_pair ? 2 : 1);
}

}  // namespace

bool GuestModel::ApplyEvent(const QString& event) {
  const AddressedLine addressed = SplitDisplay(event);
  const GuestLine line = ParseGuestLine(addressed.line);
  if (line.kind == Kind::kUnknown) return false;
  return addressed.display == display_ ? Apply(line) : true;
}

bool GuestModel::ApplyText(const QString& line) { return Apply(ParseGuestLine(line)); }

bool GuestModel::Apply(const GuestLine& line) {
  switch (line.kind) {
    case Kind::kUnknown: return false;
    case Kind::kKeyPress: SetHeld(&state_.held_keys, line.Integer(0), true); return true;
    case Kind::kKeyRelease: SetHeld(&state_.held_keys, line.Integer(0), false); return true;
    case Kind::kMouseMove: state_.pointer = line.PointAt(0); return true;
    case Kind::kWheel:
    case Kind::kWheelWithDelta: state_.wheel = {line.PointAt(0), line.numbers[2], state_.wheel.count + 1}; return true;
    case Kind::kText: state_.text += line.text; return true;
    case Kind::kTextControl: return ControlText(line.text);
    case Kind::kSlotPress:
    case Kind::kSlotRelease:
    case Kind::kSlotReleaseAll:
    case Kind::kMultiPress:
    case Kind::kMultiRelease: return ApplyTouch(line);
    default: return ApplyGamepad(line);
  }
}

bool GuestModel::ApplyTouch(const GuestLine& line) {
  switch (line.kind) {
    case Kind::kSlotPress: return PutContact(line.Integer(0), line.Integer(1), line.PointAt(4));
    case Kind::kMultiPress: return PressContacts(line);
    case Kind::kSlotReleaseAll: state_.contacts.clear(); return true;
    default: return ReleaseContacts(line);
  }
}

bool GuestModel::PutContact(int slot, int tracking_id, const QPoint& point) {
  if (!IsSlot(slot)) return false;
  state_.contacts[slot] = {tracking_id, point};
  return true;
}

bool GuestModel::PressContacts(const GuestLine& line) {
  bool all = true;
  for (int i = 0; i < line.numbers.size(); i += kFieldsOfContact) {
    all = PutContact(line.Integer(i), line.Integer(i + 1), line.PointAt(i + 2)) && all;
  }
  return all;
}

// Releasing a contact that is not down is no error: a reset sweeps all slots.
bool GuestModel::ReleaseContacts(const GuestLine& line) {
  bool all = true;
  for (int i = 0; i < line.numbers.size(); ++i) {
    all = IsSlot(line.Integer(i)) && all;
    state_.contacts.remove(line.Integer(i));
  }
  return all;
}

bool GuestModel::ControlText(const QString& name) {
  if (name == QLatin1String("ENTER")) {
    state_.text += QLatin1Char('\n');
    return true;
  }
  if (name == QLatin1String("BACKSPACE")) {
    RemoveLastCharacter(&state_.text);
    return true;
  }
  return false;
}

bool GuestModel::ApplyGamepad(const GuestLine& line) {
  GuestGamepad& pad = state_.gamepad;
  pad.used = true;
  switch (line.kind) {
    case Kind::kLeftStick: pad.left_stick = StickOf(line); return true;
    case Kind::kRightStick: pad.right_stick = StickOf(line); return true;
    case Kind::kLeftTrigger: pad.left_trigger = line.Integer(0); return true;
    case Kind::kRightTrigger: pad.right_trigger = line.Integer(0); return true;
    case Kind::kGamepadButton: SetHeld(&pad.buttons, line.Integer(0), line.Integer(1) != 0); return true;
    case Kind::kHatX: pad.hat.setX(line.Integer(0)); return true;
    case Kind::kHatY: pad.hat.setY(line.Integer(0)); return true;
    case Kind::kTouchpadTouch: pad.touchpad = line.PointAt(0); return true;
    case Kind::kTouchpadPress: pad.touchpad_pressed = true; return true;
    case Kind::kTouchpadRelease:
      pad.touchpad_pressed = false;
      pad.touchpad.reset();
      return true;
    default: return false;
  }
}

}  // namespace tavi
