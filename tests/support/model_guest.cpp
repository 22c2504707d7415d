#include "tests/support/model_guest.h"

#include <algorithm>

namespace taviinputmanager {
namespace {

constexpr int kSlotCount = 26;

bool AreNumbers(const QStringList& fields) {
  return std::all_of(fields.begin(), fields.end(), [](const QString& field) {
    bool is_number = false;
    field.toDouble(&is_number);
    return is_number;
  });
}

bool IsSlot(int slot) { return slot >= 0 && slot < kSlotCount; }

// 306 and 309 are buttons that no gamepad here has.
bool IsPadButton(int code) { return code >= 304 && code <= 318 && code != 306 && code != 309; }

// A whole number of a range.
bool IsWithin(const QString& field, int lowest, int highest) {
  bool is_whole = false;
  const int value = field.toInt(&is_whole);
  return is_whole && value >= lowest && value <= highest;
}

// What a line of a stick, trigger or hat carries.
struct Axis {
  int fields;
  int lowest;
  int highest;
};

QString Join(const QSet<int>& numbers) {
  QList<int> sorted = numbers.values();
  std::sort(sorted.begin(), sorted.end());
  QStringList words;
  for (const int number : sorted) words.append(QString::number(number));
  return words.join(' ');
}

}  // namespace

void ModelGuest::Read(const QString& line) {
  const QStringList parts = line.split(':');
  bool is_display = false;
  const int display = parts.value(0).toInt(&is_display);
  const QStringList fields = parts.mid(2);
  if (!is_display || !AreNumbers(fields) || !ReadCommand(parts.value(1), fields, &displays_[display])) {
    unreadable_.append(line);
  }
}

bool ModelGuest::ReadCommand(const QString& word, const QStringList& fields, Display* display) {
  const int first = fields.value(0).toInt();
  if (word == "SLOTPRESS") {
    display->slots_down.insert(first);
    return fields.size() == 6 && IsSlot(first) && fields[1] == fields[0] && fields[2] == "1" && fields[3] == "1";
  }
  if (word == "SLOTRELEASE") {
    display->slots_down.remove(first);
    return fields.size() == 1 && IsSlot(first);
  }
  if (word == "SLOTRELEASEALL") {
    display->slots_down.clear();
    return fields.isEmpty();
  }
  if (word == "SLOTMULTIPRESS") {
    for (int i = 0; i < fields.size(); i += 4) {
      if (!IsSlot(fields[i].toInt())) return false;
      display->slots_down.insert(fields[i].toInt());
    }
    return !fields.isEmpty() && fields.size() % 4 == 0;
  }
  if (word == "SLOTMULTIRELEASE") {
    for (const QString& field : fields) display->slots_down.remove(field.toInt());
    return !fields.isEmpty();
  }
  if (word == "KBDPR") {
    display->keys_down.insert(first);
    return fields.size() == 2 && fields[1] == "1";
  }
  if (word == "KBDRL") {
    display->keys_down.remove(first);
    return fields.size() == 2 && fields[1] == "0";
  }
  static const QMap<QString, int> pointers = {{"MOUSEMOVE_REL", 2}, {"WHEEL", 4}, {"WHEEL_WITH_DELTA", 4}};
  return pointers.value(word, -1) == fields.size() || ReadGamepad(word, fields, display);
}

bool ModelGuest::ReadGamepad(const QString& word, const QStringList& fields, Display* display) {
  const auto hold = [display](const QString& what, bool held) {
    if (held) {
      display->pad_held.insert(what);
    } else {
      display->pad_held.remove(what);
    }
  };
  if (word == "GPDBUTTON") {
    hold(fields.value(0), fields.value(1) == "1");
    return fields.size() == 2 && IsPadButton(fields[0].toInt()) && IsWithin(fields[1], 0, 1);
  }
  if (word == "TOUCHPADLIGHTTOUCH") return fields.size() == 2;
  if (word == "TOUCHPADPRESS" || word == "TOUCHPADRELEASE") {
    hold("TOUCHPAD", word == "TOUCHPADPRESS");
    return fields.isEmpty();
  }
  static const QMap<QString, Axis> axes = {
      {"LSTICKAXIS", {2, -1000000, 1000000}},
      {"RSTICKAXIS", {2, -1000000, 1000000}},
      {"LTRIGGERAXIS", {1, 0, 1}},
      {"RTRIGGERAXIS", {1, 0, 1}},
      {"HATX", {1, -1, 1}},
      {"HATY", {1, -1, 1}},
  };
  const auto axis = axes.constFind(word);
  if (axis == axes.constEnd() || axis->fields != fields.size()) return false;
  hold(word, std::any_of(fields.begin(), fields.end(), [](const QString& field) { return field != "0"; }));
  return std::all_of(fields.begin(), fields.end(),
                     [&axis](const QString& field) { return IsWithin(field, axis->lowest, axis->highest); });
}

void ModelGuest::ReadText(const QString& line) {
  const bool is_text = line.startsWith("TEXT:") || line == "TEXT_CONTROL:ENTER" || line == "TEXT_CONTROL:BACKSPACE";
  if (!is_text) unreadable_.append(line);
}

QString ModelGuest::WhatIsDown() const {
  QStringList lines;
  for (auto it = displays_.begin(); it != displays_.end(); ++it) {
    if (it->slots_down.isEmpty() && it->keys_down.isEmpty()) continue;
    lines.append(
        QStringLiteral("display %1: slots %2, keys %3").arg(it.key()).arg(Join(it->slots_down), Join(it->keys_down)));
  }
  return lines.join('\n');
}

QString ModelGuest::WhatGamepadsHold() const {
  QStringList lines;
  for (auto it = displays_.begin(); it != displays_.end(); ++it) {
    if (it->pad_held.isEmpty()) continue;
    QStringList held = it->pad_held.values();
    held.sort();
    lines.append(QStringLiteral("display %1: %2").arg(it.key()).arg(held.join(' ')));
  }
  return lines.join('\n');
}

}  // namespace taviinputmanager
