#include "record/replay_event_handler.h"

#include <algorithm>
#include <cstdlib>

#include <QRandomGenerator>
#include <QStringList>

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/input_status_manager.h"
#include "qt/numbers.h"
#include "record/point_text.h"
#include "record/record_format.h"
#include "slots/macro_slot_manager.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

constexpr unsigned kDisturbances = 3;  // display pixels: 0, 1 or 2

// In pixels of the current display. The null point, which is also the top left corner, is not a point.
QPointF DisplayPoint(const QString& text) { return DisplayGeometry::GetInstance()->RelativeToDisplay(ReadPoint(text)); }

// Both coordinates rounded up, or both down. The minimum is 0; there is no maximum.
QPointF Disturbed(const QPointF& point) {
  const int direction = std::rand() % 2 != 0 ? 1 : -1;
  const auto move = [direction](qreal v) {
    const auto pixels = static_cast<int>(QRandomGenerator::global()->generate() % kDisturbances);
    return std::max<qreal>(0, v + direction * pixels);
  };
  const qreal x = move(point.x());  // the random value of x comes first
  return {x, move(point.y())};
}

bool HasMoreThan(const QString& data, QLatin1String word) { return data.startsWith(word) && data.size() > word.size(); }

// Whether there is exactly one argument, which is stored in `argument`.
bool OneArgument(const QString& data, QString* argument) {
  const QStringList parts = data.split(QLatin1Char(':'));
  if (parts.size() != 2) return false;
  *argument = parts.at(1);
  return true;
}

}  // namespace

ReplayEventHandler* ReplayEventHandler::GetInstance() {
  static ReplayEventHandler instance;
  return &instance;
}

void ReplayEventHandler::SendToReplay(const QString& command) {
  SendEventTo(command, InputStatusManager::GetInstance()->GetReplayDisplayId());
}

void ReplayEventHandler::OnMouseAction(const QString& data, const QString& /*extra1*/, const QString& /*extra2*/) {
  const bool is_wheel = data.startsWith(kWheel);
  if (!is_wheel && !data.startsWith(kMove)) return;
  QString argument;
  if (!OneArgument(data, &argument)) return;
  const QPointF place = DisplayPoint(argument);
  if (place.isNull()) return;
  SendToReplay(is_wheel ? guest_command::Wheel(place) : guest_command::MouseMove(place));
}

void ReplayEventHandler::OnKeyboardAction(const QString& data, const QString& /*extra1*/, const QString& /*extra2*/) {
  const bool is_press = data.startsWith(kKeyboardPress);
  if (!is_press && !data.startsWith(kKeyboardRelease)) return;
  QString argument;
  if (!OneArgument(data, &argument)) return;
  const int code = qt::ToInt(argument);
  CodeSet& held = InputStatusManager::GetInstance()->ReplayHeldKeys();
  if (is_press) {
    held.Add(code);
    replayed_keys_.Add(code);
    SendToReplay(guest_command::KeyPress(code));
  } else {
    held.Remove(code);
    replayed_keys_.Remove(code);
    SendToReplay(guest_command::KeyRelease(code));
  }
}

void ReplayEventHandler::OnTouchAction(const QString& data, const QString& extra1, const QString& /*extra2*/,
                                       bool emulation_mode) {
  if (data.startsWith(kPressRel)) return Press(data, extra1, emulation_mode);
  if (data == kRelease) return Release(extra1);
  if (data.startsWith(kPressMultiRel)) return MultiPress(data, extra1);
  if (data == kReleaseMulti) return MultiRelease(extra1);
  if (data != kReset) return;
  pressed_slots_.clear();  // the pool and the map stay: later presses get their previous slots
  SendToReplay(guest_command::SlotReleaseAll());
}

void ReplayEventHandler::Press(const QString& data, const QString& slot_text, bool emulation_mode) {
  QString argument;
  if (!OneArgument(data, &argument)) return;
  QPointF place = DisplayPoint(argument);
  if (emulation_mode) place = Disturbed(place);
  if (place.isNull()) return;
  const int id = MapSlot(qt::ToInt(slot_text));
  const QString command = guest_command::SlotPress(id, place);
  pressed_slots_.insert(id, command);
  SendToReplay(command);
}

void ReplayEventHandler::Release(const QString& slot_text) {
  const int original = qt::ToInt(slot_text);
  const int id = MapSlot(original);
  pressed_slots_.remove(id);
  UnmapSlot(original, id);
  SendToReplay(guest_command::SlotRelease(id));
}

void ReplayEventHandler::MultiPress(const QString& data, const QString& slot_texts) {
  const QStringList points = data.split(QLatin1Char(':'));
  const QStringList ids = slot_texts.split(QLatin1Char(':'));
  if (points.size() != ids.size() + 1) return;
  QStringList groups;
  for (int i = 0; i < ids.size(); ++i) {
    const QPointF place = DisplayPoint(points.at(i + 1));
    const int id = MapSlot(qt::ToInt(ids.at(i)));
    if (place.isNull()) continue;  // its slot stays mapped
    groups.append(guest_command::ContactGroup(id, place));
    pressed_multi_slots_.insert(id, groups.last());
  }
  if (!groups.isEmpty()) SendToReplay(guest_command::SlotMultiPressOf(groups));
}

// The line has the slots of the record, unlike the press, which has those of the pool.
void ReplayEventHandler::MultiRelease(const QString& slot_texts) {
  if (slot_texts.isEmpty()) return;
  for (const QString& slot_text : slot_texts.split(QLatin1Char(':'))) {
    const int original = qt::ToInt(slot_text);
    const int id = MapSlot(original);
    pressed_multi_slots_.remove(id);
    UnmapSlot(original, id);
  }
  SendToReplay(guest_command::SlotMultiReleaseOf(slot_texts));
}

void ReplayEventHandler::OnInputMethodAction(const QString& data, const QString& /*extra1*/,
                                             const QString& /*extra2*/) {
  // Anything between the word and the text counts as the colon.
  if (HasMoreThan(data, kTextInject)) return SendText(guest_command::Text(data.mid(kTextInject.size() + 1)));
  if (HasMoreThan(data, kTextControl)) SendText(guest_command::TextControl(data.mid(kTextControl.size() + 1)));
}

void ReplayEventHandler::OnJoystickAction(const QString& data, const QString& /*extra1*/, const QString& /*extra2*/) {
  if (!data.isEmpty()) SendToReplay(guest_command::Complete(data));
}

void ReplayEventHandler::Reset() {
  pressed_slots_.clear();
  pressed_multi_slots_.clear();
  replayed_keys_.Clear();
  slot_map_.clear();
}

void ReplayEventHandler::ResumeHeldInput() {
  // Copies: the host may restart a replay during a call, which clears all this.
  const QMap<int, QString> slots = pressed_slots_;
  const QStringList multi_slots = pressed_multi_slots_.values();
  const CodeSet keys = replayed_keys_;
  for (const QString& command : slots) SendToReplay(command);
  if (!multi_slots.isEmpty()) SendToReplay(guest_command::SlotMultiPressOf(multi_slots));
  for (const int code : keys) {
    InputStatusManager::GetInstance()->ReplayHeldKeys().Add(code);
    SendToReplay(guest_command::KeyPress(code));
  }
}

int ReplayEventHandler::MapSlot(int id) {
  const auto mapped = slot_map_.constFind(id);
  if (mapped != slot_map_.constEnd()) return *mapped;
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  const int free = pool->FindFree();
  if (free == MacroSlotManager::kNoSlot) return id;
  pool->Reserve(free);
  slot_map_.insert(id, free);
  return free;
}

void ReplayEventHandler::UnmapSlot(int original, int id) {
  if (slot_map_.remove(original) > 0) MacroSlotManager::GetInstance()->Free(id);
}

}  // namespace taviinputmanager
