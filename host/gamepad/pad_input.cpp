#include "host/gamepad/pad_input.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "keymap/joystick_event.h"
#include "taviinputmanager/joystick_event.h"

namespace tavi {

using tavikeymapmanager::JoystickEvent;

namespace {

constexpr int kLeft = 0;
constexpr int kRight = 1;

// Kinds of gamepad, by the library's names for their buttons: letters and arrows, or the numbers of a PlayStation
// gamepad.
constexpr int kLetters = 1;
constexpr int kPlayStationNumbers = 2;

constexpr int kFirstNumberedDevice = 1000000;

const QString kLeftTrigger = QStringLiteral("lefttrigger");
const QString kRightTrigger = QStringLiteral("righttrigger");

struct NameRow {
  const char* button;    // SDL's name
  const char16_t* text;  // the library's name
};

constexpr NameRow kNames[] = {
    {"a", u"A"},
    {"b", u"B"},
    {"x", u"X"},
    {"y", u"Y"},
    {"back", u"Back"},
    {"start", u"Start"},
    {"guide", u"Guide"},
    {"leftstick", u"LA"},
    {"rightstick", u"RA"},
    {"leftshoulder", u"LB"},
    {"rightshoulder", u"RB"},
    {"lefttrigger", u"LT"},
    {"righttrigger", u"RT"},
    {"dpup", u"\u2191"},
    {"dpdown", u"\u2193"},
    {"dpleft", u"\u2190"},
    {"dpright", u"\u2192"},
    {"misc1", u"Misc"},
    {"paddle1", u"Paddle1"},
    {"paddle2", u"Paddle2"},
    {"paddle3", u"Paddle3"},
    {"paddle4", u"Paddle4"},
};

// Buttons that the library knows only on a PlayStation gamepad, by number.
constexpr NameRow kPlayStationNames[] = {
    {"guide", u"12"},
    {"touchpad", u"13"},
};

struct OppositeRow {
  const char* button;
  const char* opposite;
};

constexpr OppositeRow kOpposites[] = {
    {"dpup", "dpdown"},
    {"dpdown", "dpup"},
    {"dpleft", "dpright"},
    {"dpright", "dpleft"},
};

struct AxisRow {
  const char* axis;
  int stick;
  bool is_x;
};

constexpr AxisRow kAxes[] = {
    {"leftx", kLeft, true},
    {"lefty", kLeft, false},
    {"rightx", kRight, true},
    {"righty", kRight, false},
};

// Empty if the table has no such button.
template <size_t N>
QString TextIn(const NameRow (&rows)[N], const QString& button) {
  for (const NameRow& row : rows) {
    if (button == QLatin1String(row.button)) return QString::fromUtf16(row.text);
  }
  return {};
}

QString OppositeOf(const QString& button) {
  for (const OppositeRow& row : kOpposites) {
    if (button == QLatin1String(row.button)) return QLatin1String(row.opposite);
  }
  return {};
}

bool HasMoved(const QPointF& from, const QPointF& to) {
  if (to.isNull() || from.isNull()) return to.isNull() != from.isNull();
  const QPointF way = to - from;
  return std::hypot(way.x(), way.y()) > kStickStep;
}

}  // namespace

QPointF StickValue(const QPointF& raw) {
  const double length = std::hypot(raw.x(), raw.y());
  if (length <= kStickDeadZone) return {};
  const double value = std::min(1.0, (length - kStickDeadZone) / (1 - kStickDeadZone));
  return raw * (value / length);
}

int KindOfDevice(int device) { return device >= kFirstNumberedDevice ? kPlayStationNumbers : kLetters; }

PadInput::PadInput(int id, PadFamily family, Sink sink) : id_(id), family_(family), sink_(std::move(sink)) {}

PadInput::Press PadInput::PressOf(const QString& button) const {
  if (family_ == PadFamily::kPlayStation) {
    const QString number = TextIn(kPlayStationNames, button);
    if (!number.isEmpty()) return {button, number, kFirstNumberedDevice + id_};
  }
  return {button, TextIn(kNames, button), id_};
}

void PadInput::SetButton(const QString& button, bool down) {
  if (down == down_.contains(button)) return;
  if (down) {
    down_.insert(button);
    Tell(button);
  } else {
    down_.remove(button);
    if (listening_) TakeBack(button);
  }
}

bool PadInput::IsTold(const QString& button) const {
  return std::any_of(told_.begin(), told_.end(), [&](const Press& press) { return press.button == button; });
}

void PadInput::Tell(const QString& button) {
  const Press press = PressOf(button);
  if (!listening_ || press.text.isEmpty() || IsTold(button)) return;
  // Releasing either end of an axis of the hat centres the axis, so it must not come after the other end's press.
  TakeBack(OppositeOf(button));
  told_.append(press);
  taviinputmanager::JoystickButtonEvent event(JoystickEvent::ButtonPress, press.text, 0, press.device);
  sink_(&event);
}

void PadInput::TakeBack(const QString& button) {
  const auto told =
      std::find_if(told_.begin(), told_.end(), [&](const Press& press) { return press.button == button; });
  if (told == told_.end()) return;
  const Press press = *told;
  told_.erase(told);
  taviinputmanager::JoystickButtonEvent event(JoystickEvent::ButtonRelease, press.text, 0, press.device);
  sink_(&event);
}

void PadInput::SetAxis(const QString& axis, double value) {
  if (axis == kLeftTrigger || axis == kRightTrigger) return SetTrigger(axis, value);
  for (const AxisRow& row : kAxes) {
    if (axis != QLatin1String(row.axis)) continue;
    QPointF& stick = sticks_[row.stick];
    (row.is_x ? stick.rx() : stick.ry()) = value;
  }
}

void PadInput::SetTrigger(const QString& trigger, double value) {
  const bool is_down = down_.contains(trigger);
  SetButton(trigger, is_down ? value >= kTriggerUp : value > kTriggerDown);
}

void PadInput::SendSticks() {
  if (!listening_) return;
  const QPointF left = StickValue(sticks_[kLeft]);
  if (HasMoved(told_sticks_[kLeft], left)) TellStick(kLeft, left);
  const QPointF right = StickValue(sticks_[kRight]);
  if (!right.isNull() || !told_sticks_[kRight].isNull()) TellStick(kRight, right);
}

void PadInput::TellStick(int stick, const QPointF& value) {
  told_sticks_[stick] = value;
  taviinputmanager::JoystickAxisEvent event(JoystickEvent::AxisTriggle, value.x(), value.y(), stick, id_);
  sink_(&event);
}

void PadInput::ReleaseAll() {
  while (!told_.isEmpty()) TakeBack(told_.last().button);
  for (const int stick : {kLeft, kRight}) {
    if (!told_sticks_[stick].isNull()) TellStick(stick, {});
  }
}

void PadInput::SetListening(bool listening) {
  listening_ = listening;
  if (!listening_) return;
  const QVector<Press> told = told_;
  for (const Press& press : told) {
    if (!down_.contains(press.button)) TakeBack(press.button);
  }
}

QStringList PadInput::Pressed() const {
  QStringList texts;
  for (const Press& press : told_) texts += press.text;
  return texts;
}

}  // namespace tavi
