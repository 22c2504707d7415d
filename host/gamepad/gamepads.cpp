#include "host/gamepad/gamepads.h"

#include <utility>

namespace tavi {

Gamepads::Gamepads(PadInput::Sink sink, QObject* parent) : QObject(parent), sink_(std::move(sink)) {}

void Gamepads::Add(int id, const QString& name, PadFamily family) {
  Remove(id);
  Pad& pad = pads_.emplace(id, Pad{name, PadInput(id, family, sink_)}).first->second;
  pad.input.SetListening(listening_);
  Touch(id);
}

void Gamepads::Remove(int id) {
  Pad* pad = Find(id);
  if (!pad) return;
  pad->input.ReleaseAll();
  pads_.erase(id);
  if (last_used_ == id) last_used_ = pads_.empty() ? -1 : pads_.rbegin()->first;
  Q_EMIT Changed();
}

void Gamepads::SetButton(int id, const QString& button, bool down) {
  Pad* pad = Find(id);
  if (!pad) return;
  pad->input.SetButton(button, down);
  Touch(id);
}

void Gamepads::SetAxis(int id, const QString& axis, double value) {
  Pad* pad = Find(id);
  if (!pad) return;
  const QStringList before = pad->input.Pressed();
  pad->input.SetAxis(axis, value);
  if (pad->input.Pressed() != before) Touch(id);
}

void Gamepads::SendSticks() {
  for (auto& [id, pad] : pads_) {
    const QPointF left = pad.input.Stick(0);
    const QPointF right = pad.input.Stick(1);
    pad.input.SendSticks();
    if (pad.input.Stick(0) != left || pad.input.Stick(1) != right) Touch(id);
  }
}

void Gamepads::SetListening(bool listening) {
  listening_ = listening;
  for (auto& [id, pad] : pads_) pad.input.SetListening(listening);
  Q_EMIT Changed();
}

void Gamepads::ReleaseAll() {
  for (auto& [id, pad] : pads_) pad.input.ReleaseAll();
  Q_EMIT Changed();
}

QList<int> Gamepads::Ids() const {
  QList<int> ids;
  for (const auto& [id, pad] : pads_) ids += id;
  return ids;
}

const PadInput* Gamepads::LastUsed() const {
  const auto pad = pads_.find(last_used_);
  return pad == pads_.end() ? nullptr : &pad->second.input;
}

QString Gamepads::LastUsedName() const {
  const auto pad = pads_.find(last_used_);
  return pad == pads_.end() ? QString() : pad->second.name;
}

Gamepads::Pad* Gamepads::Find(int id) {
  const auto pad = pads_.find(id);
  return pad == pads_.end() ? nullptr : &pad->second;
}

void Gamepads::Touch(int id) {
  last_used_ = id;
  Q_EMIT Changed();
}

}  // namespace tavi
