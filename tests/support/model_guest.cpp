#include "tests/support/model_guest.h"

#include <algorithm>

#include "host/guest/guest_line.h"

namespace taviinputmanager {
namespace {

// 306 and 309 are buttons that no gamepad here has.
bool IsPadButton(int code) { return code >= 304 && code <= 318 && code != 306 && code != 309; }

bool IsStick(const QPointF& stick) { return qAbs(stick.x()) <= 1 && qAbs(stick.y()) <= 1; }

bool IsTrigger(int value) { return value == 0 || value == 1; }

bool IsGamepad(const tavi::GuestGamepad& pad) {
  return IsStick(pad.left_stick) && IsStick(pad.right_stick) && IsTrigger(pad.left_trigger) &&
         IsTrigger(pad.right_trigger) && qAbs(pad.hat.x()) <= 1 && qAbs(pad.hat.y()) <= 1 &&
         std::all_of(pad.buttons.begin(), pad.buttons.end(), IsPadButton);
}

// The library writes a contact's slot twice.
bool AreTracksSlots(const QMap<int, tavi::GuestContact>& contacts) {
  for (auto it = contacts.begin(); it != contacts.end(); ++it) {
    if (it->tracking_id != it.key()) return false;
  }
  return true;
}

QString Join(QList<int> numbers) {
  std::sort(numbers.begin(), numbers.end());
  QStringList words;
  for (const int number : numbers) words.append(QString::number(number));
  return words.join(' ');
}

QString Held(const tavi::GuestGamepad& pad) {
  QStringList held;
  if (!pad.buttons.isEmpty()) held.append(Join(pad.buttons.values()));
  if (!pad.left_stick.isNull()) held.append("left stick");
  if (!pad.right_stick.isNull()) held.append("right stick");
  if (pad.left_trigger != 0) held.append("left trigger");
  if (pad.right_trigger != 0) held.append("right trigger");
  if (!pad.hat.isNull()) held.append("hat");
  if (pad.touchpad_pressed) held.append("touchpad");
  return held.join(' ');
}

}  // namespace

void ModelGuest::Read(const QString& line) {
  const int number = tavi::SplitDisplay(line).display;
  tavi::GuestModel& display = displays_.try_emplace(number, number).first->second;
  const bool is_understood = display.ApplyEvent(line);
  const tavi::GuestState& state = display.state();
  if (!is_understood || !AreTracksSlots(state.contacts) || !IsGamepad(state.gamepad)) unreadable_.append(line);
}

void ModelGuest::ReadText(const QString& line) {
  if (!tavi::GuestModel(0).ApplyText(line)) unreadable_.append(line);
}

QString ModelGuest::WhatIsDown() const {
  QStringList lines;
  for (const auto& [number, display] : displays_) {
    const tavi::GuestState& state = display.state();
    if (state.contacts.isEmpty() && state.held_keys.isEmpty()) continue;
    lines.append(QStringLiteral("display %1: slots %2, keys %3")
                     .arg(number)
                     .arg(Join(state.contacts.keys()), Join(state.held_keys.values())));
  }
  return lines.join('\n');
}

QString ModelGuest::WhatGamepadsHold() const {
  QStringList lines;
  for (const auto& [number, display] : displays_) {
    const QString held = Held(display.state().gamepad);
    if (!held.isEmpty()) lines.append(QStringLiteral("display %1: %2").arg(number).arg(held));
  }
  return lines.join('\n');
}

}  // namespace taviinputmanager
