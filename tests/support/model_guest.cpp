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
  static const QMap<QString, int> others = {
      {"MOUSEMOVE_REL", 2}, {"WHEEL", 4},           {"WHEEL_WITH_DELTA", 4},   {"LSTICKAXIS", 2}, {"RSTICKAXIS", 2},
      {"LTRIGGERAXIS", 1},  {"RTRIGGERAXIS", 1},    {"GPDBUTTON", 2},          {"HATX", 1},       {"HATY", 1},
      {"TOUCHPADPRESS", 0}, {"TOUCHPADRELEASE", 0}, {"TOUCHPADLIGHTTOUCH", 2},
  };
  return others.value(word, -1) == fields.size();
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

}  // namespace taviinputmanager
