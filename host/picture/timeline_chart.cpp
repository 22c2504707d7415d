#include "host/picture/timeline_chart.h"

#include <algorithm>

#include "host/guest/guest_key_names.h"
#include "host/guest/guest_line.h"
#include "host/simulation/script.h"
#include "host/simulation/simulated_host.h"
#include "keymapmanager/key_names.h"

namespace tavi {

using Group = ChartLane::Group;
using Input = ScriptCommand::Kind;
using Kind = GuestLine::Kind;

namespace {

constexpr int kMainDisplay = 1;
const QString kArrow = QStringLiteral(" \u2192 ");

QString PointText(const QPointF& point) { return QStringLiteral("%1,%2").arg(point.x()).arg(point.y()); }

QString SwitchText(const char* name, bool is_on) {
  return QLatin1String(name) + (is_on ? QStringLiteral(" on") : QStringLiteral(" off"));
}

QString SizeText(const char* name, const QSize& size) {
  return QStringLiteral("%1 %2x%3").arg(QLatin1String(name)).arg(size.width()).arg(size.height());
}

QString NumberText(const char* name, int number) {
  return QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(number);
}

// For the commands that are not input of a player.
QString SettingText(const ScriptCommand& command) {
  switch (command.kind) {
    case Input::kReset: return command.flag ? QStringLiteral("reset full") : QStringLiteral("reset");
    case Input::kDisplay: return NumberText("display", command.number);
    case Input::kKeymap: return QStringLiteral("keymap ") + command.text.section(QLatin1Char('/'), -1);
    case Input::kJoymap: return QStringLiteral("joymap ") + command.text.section(QLatin1Char('/'), -1);
    case Input::kPackage: return QStringLiteral("package ") + command.text;
    case Input::kBack: return NumberText("back", command.number);
    case Input::kWindow: return SizeText("window", command.size);
    case Input::kGuest: return SizeText("guest", command.size);
    case Input::kTouchpanel: return SizeText("touchpanel", command.size);
    case Input::kRotation: return NumberText("rotation", command.number);
    case Input::kTextField: return SwitchText("textfield", command.flag);
    case Input::kEscapeBack: return SwitchText("escape back", command.flag);
    case Input::kTransparent: return SwitchText("transparent", command.flag);
    default: return {};
  }
}

// The lane and the text of a mark.
struct MarkPlace {
  QString lane;  // empty: none
  QString text;
};

MarkPlace PlaceOfInput(const ScriptCommand& command) {
  switch (command.kind) {
    case Input::kMove: return {QStringLiteral("pointer"), {}};
    case Input::kWheel: return {QStringLiteral("wheel"), QStringLiteral("%1").arg(command.number)};
    case Input::kRelative: return {QStringLiteral("mouse counts"), {}};
    case Input::kType:
    case Input::kCommit:
    case Input::kCompose: return {QStringLiteral("text"), command.text};
    case Input::kJoyAxis:
      return {command.number == 0 ? QStringLiteral("left stick") : QStringLiteral("right stick"), {}};
    default: return {QStringLiteral("settings"), SettingText(command)};
  }
}

MarkPlace PlaceOfLine(const GuestLine& line) {
  const auto number = [&line](int index) { return QString::number(line.numbers.value(index)); };
  switch (line.kind) {
    case Kind::kMouseMove: return {QStringLiteral("pointer"), {}};
    case Kind::kWheel:
    case Kind::kWheelWithDelta: return {QStringLiteral("wheel"), number(2)};
    case Kind::kText:
    case Kind::kTextControl: return {QStringLiteral("text"), line.text};
    case Kind::kLeftStick: return {QStringLiteral("left stick"), {}};
    case Kind::kRightStick: return {QStringLiteral("right stick"), {}};
    case Kind::kLeftTrigger: return {QStringLiteral("left trigger"), number(0)};
    case Kind::kRightTrigger: return {QStringLiteral("right trigger"), number(0)};
    case Kind::kHatX: return {QStringLiteral("hat x"), number(0)};
    case Kind::kHatY: return {QStringLiteral("hat y"), number(0)};
    case Kind::kTouchpadTouch:
    case Kind::kTouchpadPress:
    case Kind::kTouchpadRelease: return {QStringLiteral("touchpad"), {}};
    default: return {QStringLiteral("other lines"), {}};
  }
}

bool IsOpen(const ChartLane& lane) { return !lane.bars.isEmpty() && lane.bars.last().is_open; }

}  // namespace

void TimelineChart::AddInput(qint64 ms, const ScriptCommand& command) {
  end_ms_ = std::max(end_ms_, ms);
  if (command.kind == Input::kWait) return;
  ++input_count_;
  const auto key_lane = [&] { return LaneOf(Group::kInput, tavikeymapmanager::NameOfKey(command.key)); };
  const auto pad_lane = [&] {
    return LaneOf(Group::kInput, tavikeymapmanager::NameOfKey(tavikeymapmanager::JoystickKey(command.text)));
  };
  switch (command.kind) {
    case Input::kKeyDown: return StartBar(key_lane(), ms, {});
    case Input::kKeyRepeat: key_lane()->marks.append(ChartMark{ms, {}}); return;
    case Input::kMouseDown:
    case Input::kMouseDouble: return StartBar(key_lane(), ms, PointText(command.point));
    case Input::kKeyUp:
    case Input::kMouseUp: return EndBar(key_lane(), ms);
    case Input::kJoyDown: return StartBar(pad_lane(), ms, {});
    case Input::kJoyUp: return EndBar(pad_lane(), ms);
    case Input::kTouchBegin:
    case Input::kTouchUpdate:
    case Input::kTouchEnd: return AddTouchInput(ms, command);
    default: break;
  }
  const MarkPlace place = PlaceOfInput(command);
  LaneOf(Group::kInput, place.lane)->marks.append({ms, place.text});
}

void TimelineChart::AddTouchInput(qint64 ms, const ScriptCommand& command) {
  ChartLane* lane = LaneOf(Group::kInput, QStringLiteral("touch screen"));
  if (command.kind == Input::kTouchEnd) return EndBar(lane, ms);
  if (command.kind == Input::kTouchUpdate) return lane->marks.append(ChartMark{ms, {}});
  StartBar(lane, ms, QStringLiteral("%1 fingers").arg(command.touches.size()));
}

void TimelineChart::AddEntry(const TimelineEntry& entry) {
  end_ms_ = std::max(end_ms_, entry.ms);
  if (entry.source == TimelineEntry::Source::kCallback) {
    // Every event reports that its device was used.
    const bool is_usual = entry.text.startsWith(QLatin1String("mapped "));
    if (!is_usual) LaneOf(Group::kHost, QStringLiteral("host"))->marks.append({entry.ms, entry.text});
    return;
  }
  ++line_count_;
  if (entry.source == TimelineEntry::Source::kText) return AddLine(entry.ms, {}, ParseGuestLine(entry.text));
  const AddressedLine addressed = SplitDisplay(entry.text);
  const bool is_main = addressed.display == kMainDisplay;
  const QString prefix = is_main ? QString() : QStringLiteral("display %1: ").arg(addressed.display);
  AddLine(entry.ms, prefix, ParseGuestLine(addressed.line));
}

void TimelineChart::AddLine(qint64 ms, const QString& prefix, const GuestLine& line) {
  const auto key_lane = [&] { return LaneOf(Group::kGuest, prefix + NameOfGuestKey(line.Integer(0))); };
  switch (line.kind) {
    case Kind::kSlotPress:
    case Kind::kSlotRelease:
    case Kind::kSlotReleaseAll:
    case Kind::kMultiPress:
    case Kind::kMultiRelease: return AddTouchLine(ms, prefix, line);
    case Kind::kKeyPress: return StartBar(key_lane(), ms, {});
    case Kind::kKeyRelease: return EndBar(key_lane(), ms);
    case Kind::kGamepadButton: {
      ChartLane* lane = LaneOf(Group::kGuest, prefix + QStringLiteral("button %1").arg(line.Integer(0)));
      return line.Integer(1) != 0 ? StartBar(lane, ms, {}) : EndBar(lane, ms);
    }
    default: break;
  }
  const MarkPlace place = PlaceOfLine(line);
  LaneOf(Group::kGuest, prefix + place.lane)->marks.append({ms, place.text});
}

void TimelineChart::AddTouchLine(qint64 ms, const QString& prefix, const GuestLine& line) {
  const auto& numbers = line.numbers;
  const auto lift = [&](int slot) { EndBar(LaneOf(Group::kGuest, prefix + NumberText("finger", slot)), ms); };
  switch (line.kind) {
    case Kind::kSlotPress: return PutFinger(ms, prefix, line.Integer(0), {numbers[4], numbers[5]});
    case Kind::kSlotRelease: return lift(line.Integer(0));
    case Kind::kMultiPress:
      for (int i = 0; i + 3 < numbers.size(); i += 4) {
        PutFinger(ms, prefix, line.Integer(i), {numbers[i + 2], numbers[i + 3]});
      }
      return;
    case Kind::kMultiRelease:
      for (int i = 0; i < numbers.size(); ++i) lift(line.Integer(i));
      return;
    default: break;
  }
  for (ChartLane& lane : lanes_) {
    if (lane.slot >= 0 && lane.name == prefix + NumberText("finger", lane.slot)) EndBar(&lane, ms);
  }
}

// A contact that is already down moves.
void TimelineChart::PutFinger(qint64 ms, const QString& prefix, int slot, const QPointF& point) {
  ChartLane* lane = LaneOf(Group::kGuest, prefix + NumberText("finger", slot));
  lane->slot = slot;
  if (!IsOpen(*lane)) return StartBar(lane, ms, PointText(point));
  lane->marks.append(ChartMark{ms, {}});
  QString& text = lane->bars.last().text;
  text = text.section(kArrow, 0, 0) + kArrow + PointText(point);
}

void TimelineChart::Finish(qint64 ms) {
  end_ms_ = std::max(end_ms_, ms);
  for (ChartLane& lane : lanes_) {
    if (IsOpen(lane)) lane.bars.last().end_ms = end_ms_;
  }
  // Lanes that contain only releases are omitted.
  lanes_.erase(std::remove_if(lanes_.begin(), lanes_.end(),
                              [](const ChartLane& lane) { return lane.bars.isEmpty() && lane.marks.isEmpty(); }),
               lanes_.end());
}

ChartLane* TimelineChart::LaneOf(Group group, const QString& name) {
  for (ChartLane& lane : lanes_) {
    if (lane.group == group && lane.name == name) return &lane;
  }
  ChartLane lane;
  lane.group = group;
  lane.name = name;
  lanes_.append(lane);
  return &lanes_.last();
}

// What is already down continues.
void TimelineChart::StartBar(ChartLane* lane, qint64 ms, const QString& text) {
  if (IsOpen(*lane)) return;
  lane->bars.append({ms, ms, true, text});
}

void TimelineChart::EndBar(ChartLane* lane, qint64 ms) {
  if (!IsOpen(*lane)) return;
  lane->bars.last().end_ms = ms;
  lane->bars.last().is_open = false;
}

}  // namespace tavi
