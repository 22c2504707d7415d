#include "host/target/target_gestures.h"

namespace tavi {

using Kind = GuestLine::Kind;

namespace {

constexpr int kFieldsOfContact = 4;  // of SLOTMULTIPRESS: slot, tracking id, x, y

bool IsMissed(int slot, const GuestState& before, const GuestState& down) {
  return before.contacts.contains(slot) && !down.contacts.contains(slot);
}

bool IsMissed(int code, const QSet<int>& before, const QSet<int>& down) {
  return before.contains(code) && !down.contains(code);
}

bool IsMissedTouchpad(const GuestState& before, const GuestState& down) {
  return before.gamepad.touchpad.has_value() && !down.gamepad.touchpad.has_value();
}

// "1:SLOTMULTIPRESS:10:10:600:300:0:0:680:380\n" has a head of two fields, and four for each finger.
QByteArray WithoutMissedFingers(const OutgoingLine& sent, const GuestState& before, const GuestState& down) {
  const QList<QByteArray> fields = sent.bytes.chopped(1).split(':');
  QByteArray told = fields[0] + ':' + fields[1];
  const int head_size = told.size();
  for (int i = 0; i < sent.line.numbers.size(); i += kFieldsOfContact) {
    if (IsMissed(sent.line.Integer(i), before, down)) continue;
    for (int field = i; field < i + kFieldsOfContact; ++field) told += ':' + fields[field + 2];
  }
  return told.size() == head_size ? QByteArray() : told + '\n';
}

QByteArray WithoutMissed(const OutgoingLine& sent, const GuestState& before, const GuestState& down) {
  const auto unless = [&](bool is_missed) { return is_missed ? QByteArray() : sent.bytes; };
  const GuestLine& line = sent.line;
  switch (line.kind) {
    case Kind::kSlotPress: return unless(IsMissed(line.Integer(0), before, down));
    case Kind::kMultiPress: return WithoutMissedFingers(sent, before, down);
    case Kind::kKeyPress: return unless(IsMissed(line.Integer(0), before.held_keys, down.held_keys));
    case Kind::kGamepadButton:
      return unless(line.Integer(1) != 0 && IsMissed(line.Integer(0), before.gamepad.buttons, down.gamepad.buttons));
    case Kind::kTouchpadTouch:
    case Kind::kTouchpadPress: return unless(IsMissedTouchpad(before, down));
    default: return sent.bytes;
  }
}

// Whether the line can press anything, or deflect anything from its centre.
bool CanHold(const GuestLine& line) {
  switch (line.kind) {
    case Kind::kSlotRelease:
    case Kind::kSlotReleaseAll:
    case Kind::kMultiRelease:
    case Kind::kKeyRelease:
    case Kind::kTouchpadRelease: return false;
    case Kind::kGamepadButton: return line.Integer(1) != 0;
    case Kind::kLeftStick:
    case Kind::kRightStick: return line.numbers[0] != 0 || line.numbers[1] != 0;
    case Kind::kLeftTrigger:
    case Kind::kRightTrigger:
    case Kind::kHatX:
    case Kind::kHatY: return line.numbers[0] != 0;
    default: return true;
  }
}

QVector<QByteArray> LiftLinesOf(const HeldInput& held) {
  QVector<QByteArray> lines;
  for (const auto& [display, model] : held.Displays()) {
    for (const QString& line : LiftLines(model.state())) {
      lines += QByteArray::number(display) + ':' + line.toUtf8() + '\n';
    }
  }
  return lines;
}

}  // namespace

QByteArray TargetGestures::Tell(const OutgoingLine& sent, const HeldInput& before) {
  if (sent.is_text) return sent.bytes;
  const QByteArray told = WithoutMissed(sent, before.StateOf(sent.display), down_.StateOf(sent.display));
  if (told.isEmpty()) return told;
  const GuestLine line = told.size() == sent.bytes.size() ? sent.line : OutgoingLine(told).line;
  down_.Take(sent.display, line);
  if (CanHold(line)) ever_.Take(sent.display, line);
  return told;
}

QVector<QByteArray> TargetGestures::Lift() {
  const QVector<QByteArray> lines = LiftLinesOf(down_);
  down_ = HeldInput();
  return lines;
}

QVector<QByteArray> TargetGestures::LiftEverything() {
  down_ = HeldInput();
  return LiftLinesOf(ever_);
}

}  // namespace tavi
