#include "record/command_translation.h"

#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <optional>

#include <QPointF>
#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include "core/decimal.h"
#include "core/display_geometry.h"
#include "core/guest_words.h"
#include "core/line_buffer.h"
#include "qt/lasting_text.h"
#include "qt/numbers.h"
#include "record/point_text.h"
#include "record/record_action.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

// A part of a line, or a whole one: of a text in any script, or of a line that was built here.
int IntOf(const QStringView& part) { return qt::ToInt(part); }
int IntOf(QLatin1String part) { return ReadDecimal(part.begin(), part.end()); }

bool StartsWith(const QStringView& line, QLatin1String word) { return line.startsWith(word); }
bool StartsWith(QLatin1String line, QLatin1String word) {
  const auto length = static_cast<std::size_t>(word.size());
  return line.size() >= word.size() && std::memcmp(line.data(), word.data(), length) == 0;
}

QString ToString(const QStringView& part) { return part.toString(); }
QString ToString(QLatin1String part) { return part; }

constexpr QLatin1Char kColon(':');

// A part of a line, separated by colons; the word is part 0.
template <typename Text>
QVarLengthArray<Text, 16> PartsOf(const Text& line) {
  QVarLengthArray<Text, 16> parts;
  int start = 0;
  for (int i = 0; i < line.size(); ++i) {
    if (line.at(i) != kColon) continue;
    parts.append(line.mid(start, i - start));
    start = i + 1;
  }
  parts.append(line.mid(start));
  return parts;
}

// Texts that all actions share.
struct Texts {
  QString touch = qt::Lasting(kTypeTouch);
  QString keyboard = qt::Lasting(kTypeKeyboard);
  QString mouse = qt::Lasting(kTypeMouse);
  QString joystick = qt::Lasting(kTypeJoystick);
  QString input_method = qt::Lasting(kTypeInputMethod);
  QString release = qt::Lasting(kRelease);
  QString release_multi = qt::Lasting(kReleaseMulti);
  QString reset = qt::Lasting(kReset);
};

const Texts& KnownTexts() {
  static const Texts texts;
  return texts;
}

QString Joined(QLatin1String word, const QString& argument) {
  QString data;
  data.reserve(word.size() + 1 + argument.size());
  return data.append(word).append(kColon).append(argument);
}

// Slots whose texts all actions share.
QString SlotText(int slot) {
  constexpr int kSlots = 26;
  static const auto texts = [] {
    std::array<QString, kSlots> all;
    for (int i = 0; i < kSlots; ++i) all[static_cast<std::size_t>(i)] = qt::Lasting(QString::number(i));
    return all;
  }();
  return slot >= 0 && slot < kSlots ? texts[static_cast<std::size_t>(slot)] : QString::number(slot);
}

// Nothing on a display without a size, which has no fractions.
std::optional<QPointF> FractionOf(int x, int y) {
  const QPointF point = DisplayGeometry::GetInstance()->DisplayToRelative(QPointF(x, y));
  if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return std::nullopt;
  return point;
}

// A word, a colon and a point. Contacts are often pressed at the same points: such texts are shared instead of built
// again.
QString PointText(QLatin1String word, const QPointF& point) {
  struct Made {
    const char* word = nullptr;
    double x = 0;
    double y = 0;
    QString text;
  };
  constexpr std::size_t kKept = 64;
  thread_local std::array<Made, kKept> made;
  const std::size_t hash = std::hash<double>()(point.x()) * 31 + std::hash<double>()(point.y());
  Made& last = made[(hash ^ hash >> 32) % kKept];
  if (last.word != word.data() || last.x != point.x() || last.y != point.y()) {
    LineBuffer text;
    WritePoint(point, &text.Text(word).Byte(':'));
    last = {word.data(), point.x(), point.y(), text.ToString()};
  }
  return last.text;
}

// A word and a point.
bool TakePoint(QLatin1String word, int x, int y, RecordAction* action) {
  const auto point = FractionOf(x, y);
  if (point) action->data = PointText(word, *point);
  return point.has_value();
}

template <typename Text>
bool TouchPress(const Text& line, RecordAction* action) {
  const auto parts = PartsOf(line);
  if (parts.size() != 7) return false;
  action->extra1 = SlotText(IntOf(parts[1]));
  return TakePoint(kPressRel, IntOf(parts[5]), IntOf(parts[6]), action);
}

template <typename Text>
bool TouchRelease(const Text& line, RecordAction* action) {
  const auto parts = PartsOf(line);
  if (parts.size() != 2) return false;
  action->data = KnownTexts().release;
  action->extra1 = SlotText(IntOf(parts[1]));
  return true;
}

// Groups of four: slot, tracking id, x, y.
template <typename Text>
bool TouchMultiPress(const Text& line, RecordAction* action) {
  const auto parts = PartsOf(line);
  if (parts.size() < 5 || (parts.size() - 1) % 4 != 0) return false;
  LineBuffer data;
  data.Text(kPressMultiRel);
  for (int i = 1; i < parts.size(); i += 4) {
    if (i > 1) action->extra1.append(kColon);
    action->extra1.append(SlotText(IntOf(parts[i])));
    const auto point = FractionOf(IntOf(parts[i + 2]), IntOf(parts[i + 3]));
    if (!point) return false;
    WritePoint(*point, &data.Byte(':'));
  }
  action->data = data.ToString();
  return true;
}

template <typename Text>
bool TouchMultiRelease(const Text& line, RecordAction* action) {
  const int word = guest_words::kSlotMultiRelease.size();
  if (line.size() <= word) return false;
  action->data = KnownTexts().release_multi;
  action->extra1 = ToString(line.mid(word + 1));
  return true;
}

template <typename Text>
bool TouchReset(const Text& /*line*/, RecordAction* action) {
  action->data = KnownTexts().reset;
  return true;
}

template <typename Text>
bool Key(const Text& line, QLatin1String word, RecordAction* action) {
  const auto parts = PartsOf(line);
  if (parts.size() != 3) return false;
  action->data = Joined(word, ToString(parts[1]));
  return true;
}
template <typename Text>
bool KeyPress(const Text& line, RecordAction* action) {
  return Key(line, kKeyboardPress, action);
}
template <typename Text>
bool KeyRelease(const Text& line, RecordAction* action) {
  return Key(line, kKeyboardRelease, action);
}

template <typename Text>
bool MouseWheel(const Text& line, RecordAction* action) {
  const auto parts = PartsOf(line);
  if (parts.size() != 5) return false;
  return TakePoint(kWheel, IntOf(parts[3]), IntOf(parts[4]), action);
}

template <typename Text>
bool MouseMove(const Text& line, RecordAction* action) {
  const auto parts = PartsOf(line);
  if (parts.size() != 3) return false;
  return TakePoint(kMove, IntOf(parts[1]), IntOf(parts[2]), action);
}

template <typename Text>
bool Gamepad(const Text& line, RecordAction* action) {
  action->data = ToString(line);
  return true;
}

// How the start of a line is compared with the word.
enum class Match {
  kWord,       // the line starts with the word
  kWordColon,  // and a colon follows it
  kLine        // the line is the word
};

template <typename Text>
struct Rule {
  QLatin1String word;
  Match match = Match::kWord;
  QString Texts::*type = nullptr;
  bool (*translate)(const Text& line, RecordAction* action) = nullptr;
};

template <typename Text>
bool Fits(const Text& line, const Rule<Text>& rule) {
  if (!StartsWith(line, rule.word)) return false;
  const auto end = rule.word.size();
  switch (rule.match) {
    case Match::kWord: return true;
    case Match::kWordColon: return line.size() > end && line.at(end) == kColon;
    case Match::kLine: break;
  }
  return line.size() == end;
}

// In this order; the first that matches decides.
template <typename Text>
constexpr Rule<Text> kRules[] = {
    {guest_words::kSlotPress, Match::kWordColon, &Texts::touch, TouchPress<Text>},
    {guest_words::kSlotRelease, Match::kWordColon, &Texts::touch, TouchRelease<Text>},
    {guest_words::kKeyPress, Match::kWordColon, &Texts::keyboard, KeyPress<Text>},
    {guest_words::kKeyRelease, Match::kWordColon, &Texts::keyboard, KeyRelease<Text>},
    {guest_words::kSlotMultiPress, Match::kWord, &Texts::touch, TouchMultiPress<Text>},
    {guest_words::kSlotMultiRelease, Match::kWord, &Texts::touch, TouchMultiRelease<Text>},
    {guest_words::kWheel, Match::kWordColon, &Texts::mouse, MouseWheel<Text>},
    {guest_words::kMouseMove, Match::kWordColon, &Texts::mouse, MouseMove<Text>},
    {guest_words::kSlotReleaseAll, Match::kLine, &Texts::touch, TouchReset<Text>},
    {guest_words::kGamepadButton, Match::kWordColon, &Texts::joystick, Gamepad<Text>},
    {guest_words::kLeftStickAxis, Match::kWordColon, &Texts::joystick, Gamepad<Text>},
    {guest_words::kRightStickAxis, Match::kWordColon, &Texts::joystick, Gamepad<Text>},
    {guest_words::kLeftTriggerAxis, Match::kWordColon, &Texts::joystick, Gamepad<Text>},
    {guest_words::kRightTriggerAxis, Match::kWordColon, &Texts::joystick, Gamepad<Text>},
};

template <typename Text>
bool Translate(const Text& line, RecordAction* action) {
  for (const auto& rule : kRules<Text>) {
    if (!Fits(line, rule)) continue;
    action->type = KnownTexts().*rule.type;
    return rule.translate(line, action);
  }
  return false;
}

// False if it is another line, or if there is no text.
bool TranslateText(const QString& command, QLatin1String line_word, QLatin1String word, RecordAction* action) {
  const auto end = line_word.size();
  if (!command.startsWith(line_word) || command.size() <= end + 1 || command.at(end) != kColon) return false;
  action->type = KnownTexts().input_method;
  action->data = Joined(word, command.mid(end + 1));
  return true;
}

}  // namespace

bool TranslateEventCommand(const QString& command, RecordAction* action) {
  return Translate(QStringView(command), action);
}

bool TranslateEventLine(QLatin1String line, RecordAction* action) { return Translate(line, action); }

bool TranslateTextCommand(const QString& command, RecordAction* action) {
  return TranslateText(command, guest_words::kText, kTextInject, action) ||
         TranslateText(command, guest_words::kTextControl, kTextControl, action);
}

}  // namespace taviinputmanager
