#include "host/guest/held_input.h"

#include <algorithm>

#include <QVector>

namespace tavi {

namespace {

QVector<int> InOrder(const QSet<int>& codes) {
  QVector<int> ordered(codes.begin(), codes.end());
  std::sort(ordered.begin(), ordered.end());
  return ordered;
}

QStringList GamepadLiftLines(const GuestGamepad& pad) {
  QStringList lines;
  for (const int code : InOrder(pad.buttons)) lines += QStringLiteral("GPDBUTTON:%1:0").arg(code);
  if (!pad.left_stick.isNull()) lines += QStringLiteral("LSTICKAXIS:0:0");
  if (!pad.right_stick.isNull()) lines += QStringLiteral("RSTICKAXIS:0:0");
  if (pad.left_trigger != 0) lines += QStringLiteral("LTRIGGERAXIS:0");
  if (pad.right_trigger != 0) lines += QStringLiteral("RTRIGGERAXIS:0");
  if (pad.hat.x() != 0) lines += QStringLiteral("HATX:0");
  if (pad.hat.y() != 0) lines += QStringLiteral("HATY:0");
  if (pad.touchpad || pad.touchpad_pressed) lines += QStringLiteral("TOUCHPADRELEASE");
  return lines;
}

}  // namespace

QStringList LiftLines(const GuestState& state) {
  QStringList lines;
  for (const int slot : state.contacts.keys()) lines += QStringLiteral("SLOTRELEASE:%1").arg(slot);
  for (const int code : InOrder(state.held_keys)) lines += QStringLiteral("KBDRL:%1:0").arg(code);
  return lines + GamepadLiftLines(state.gamepad);
}

void HeldInput::Take(int display, const GuestLine& line) {
  displays_.try_emplace(display, display).first->second.Apply(line);
}

const GuestState& HeldInput::StateOf(int display) const {
  static const GuestState nothing;
  const auto found = displays_.find(display);
  return found == displays_.end() ? nothing : found->second.state();
}

}  // namespace tavi
