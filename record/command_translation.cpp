#include "record/command_translation.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <QPointF>
#include <QString>
#include <QVarLengthArray>

#include "core/display_geometry.h"
#include "core/guest_words.h"
#include "core/line_buffer.h"
#include "record/point_text.h"
#include "record/record_action.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

using Parts = QVarLengthArray<QStringView, 16>;  // of a line, between its colons; the word is part 0

constexpr QLatin1Char kColon(':');

Parts PartsOf(const QString& command) {
  Parts parts;
  int start = 0;
  for (int colon = command.indexOf(kColon); colon >= 0; colon = command.indexOf(kColon, start)) {
    parts.append(QStringView(command).mid(start, colon - start));
    start = colon + 1;
  }
  parts.append(QStringView(command).mid(start));
  return parts;
}

QString Joined(QLatin1String word, const QString& argument) {
  QString data;
  data.reserve(word.size() + 1 + argument.size());
  return data.append(word).append(kColon).append(argument);
}

// Appends a colon and the point of two coordinates. False on a display without size, where there are no fractions.
bool AppendPoint(const QStringView& x, const QStringView& y, LineBuffer* data) {
  const QPointF point = DisplayGeometry::GetInstance()->DisplayToRelative(QPointF(x.toInt(), y.toInt()));
  if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return false;
  WritePoint(point, &data->Byte(':'));
  return true;
}

// A word and a point.
bool TakePoint(QLatin1String word, const QStringView& x, const QStringView& y, RecordAction* action) {
  LineBuffer data;
  if (!AppendPoint(x, y, &data.Text(word))) return false;
  action->data = data.ToString();
  return true;
}

bool TouchPress(const QString& command, RecordAction* action) {
  const Parts parts = PartsOf(command);
  if (parts.size() != 7) return false;
  action->extra1 = QString::number(parts[1].toInt());
  return TakePoint(kPressRel, parts[5], parts[6], action);
}

bool TouchRelease(const QString& command, RecordAction* action) {
  const Parts parts = PartsOf(command);
  if (parts.size() != 2) return false;
  action->data = kRelease;
  action->extra1 = QString::number(parts[1].toInt());
  return true;
}

// Groups of four: slot, tracking id, x, y.
bool TouchMultiPress(const QString& command, RecordAction* action) {
  const Parts parts = PartsOf(command);
  if (parts.size() < 5 || (parts.size() - 1) % 4 != 0) return false;
  LineBuffer data;
  data.Text(kPressMultiRel);
  for (int i = 1; i < parts.size(); i += 4) {
    if (i > 1) action->extra1.append(kColon);
    action->extra1.append(QString::number(parts[i].toInt()));
    if (!AppendPoint(parts[i + 2], parts[i + 3], &data)) return false;
  }
  action->data = data.ToString();
  return true;
}

bool TouchMultiRelease(const QString& command, RecordAction* action) {
  const int word = guest_words::kSlotMultiRelease.size();
  if (command.size() <= word) return false;
  action->data = kReleaseMulti;
  action->extra1 = command.mid(word + 1);
  return true;
}

bool TouchReset(const QString& /*command*/, RecordAction* action) {
  action->data = kReset;
  return true;
}

bool Key(const QString& command, QLatin1String word, RecordAction* action) {
  const Parts parts = PartsOf(command);
  if (parts.size() != 3) return false;
  action->data = Joined(word, parts[1].toString());
  return true;
}
bool KeyPress(const QString& command, RecordAction* action) { return Key(command, kKeyboardPress, action); }
bool KeyRelease(const QString& command, RecordAction* action) { return Key(command, kKeyboardRelease, action); }

bool MouseWheel(const QString& command, RecordAction* action) {
  const Parts parts = PartsOf(command);
  if (parts.size() != 5) return false;
  return TakePoint(kWheel, parts[3], parts[4], action);
}

bool MouseMove(const QString& command, RecordAction* action) {
  const Parts parts = PartsOf(command);
  if (parts.size() != 3) return false;
  return TakePoint(kMove, parts[1], parts[2], action);
}

bool Gamepad(const QString& command, RecordAction* action) {
  action->data = command;
  return true;
}

// How much of a line has to be the word.
enum class Match {
  kWord,       // the line starts with the word
  kWordColon,  // and a colon follows it
  kLine        // the line is the word
};

// Texts that all actions share.
const QString& TextOf(QLatin1String type) {
  static const QString texts[] = {kTypeTouch, kTypeKeyboard, kTypeMouse, kTypeJoystick, kTypeInputMethod};
  return *std::find(std::begin(texts), std::end(texts), type);
}

struct Rule {
  QLatin1String word;
  Match match = Match::kWord;
  QLatin1String type;  // one of TextOf's
  bool (*translate)(const QString& command, RecordAction* action) = nullptr;
};

bool Fits(const QString& command, const Rule& rule) {
  if (!command.startsWith(rule.word)) return false;
  const int end = rule.word.size();
  switch (rule.match) {
    case Match::kWord: return true;
    case Match::kWordColon: return command.size() > end && command.at(end) == kColon;
    case Match::kLine: break;
  }
  return command.size() == end;
}

// In this order; the first that fits decides.
constexpr Rule kRules[] = {
    {guest_words::kSlotPress, Match::kWordColon, kTypeTouch, TouchPress},
    {guest_words::kSlotRelease, Match::kWordColon, kTypeTouch, TouchRelease},
    {guest_words::kKeyPress, Match::kWordColon, kTypeKeyboard, KeyPress},
    {guest_words::kKeyRelease, Match::kWordColon, kTypeKeyboard, KeyRelease},
    {guest_words::kSlotMultiPress, Match::kWord, kTypeTouch, TouchMultiPress},
    {guest_words::kSlotMultiRelease, Match::kWord, kTypeTouch, TouchMultiRelease},
    {guest_words::kWheel, Match::kWordColon, kTypeMouse, MouseWheel},
    {guest_words::kMouseMove, Match::kWordColon, kTypeMouse, MouseMove},
    {guest_words::kSlotReleaseAll, Match::kLine, kTypeTouch, TouchReset},
    {guest_words::kGamepadButton, Match::kWordColon, kTypeJoystick, Gamepad},
    {guest_words::kLeftStickAxis, Match::kWordColon, kTypeJoystick, Gamepad},
    {guest_words::kRightStickAxis, Match::kWordColon, kTypeJoystick, Gamepad},
    {guest_words::kLeftTriggerAxis, Match::kWordColon, kTypeJoystick, Gamepad},
    {guest_words::kRightTriggerAxis, Match::kWordColon, kTypeJoystick, Gamepad},
};

// False when the line is another, or has no text.
bool TranslateText(const QString& command, QLatin1String line_word, QLatin1String word, RecordAction* action) {
  const int end = line_word.size();
  if (!command.startsWith(line_word) || command.size() <= end + 1 || command.at(end) != kColon) return false;
  action->type = TextOf(kTypeInputMethod);
  action->data = Joined(word, command.mid(end + 1));
  return true;
}

}  // namespace

bool TranslateEventCommand(const QString& command, RecordAction* action) {
  for (const Rule& rule : kRules) {
    if (!Fits(command, rule)) continue;
    action->type = TextOf(rule.type);
    return rule.translate(command, action);
  }
  return false;
}

bool TranslateTextCommand(const QString& command, RecordAction* action) {
  return TranslateText(command, guest_words::kText, kTextInject, action) ||
         TranslateText(command, guest_words::kTextControl, kTextControl, action);
}

}  // namespace taviinputmanager
