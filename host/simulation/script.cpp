#include "host/simulation/script.h"

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "host/guest/rounding.h"
#include "keymap/keywords.h"
#include "keymapmanager/key_names.h"
#include "qt/numbers.h"

namespace tavi {

using Kind = ScriptCommand::Kind;

namespace {

// The words of one command after its verb; each operation takes some of them, or sets the error.
class Words {
 public:
  explicit Words(const QString& text) : rest_(text) {}

  QString TakeWord() {
    rest_ = rest_.trimmed();
    const int end = rest_.indexOf(QLatin1Char(' '));
    const QString word = end < 0 ? rest_ : rest_.left(end);
    rest_ = end < 0 ? QString() : rest_.mid(end + 1);
    return word;
  }
  QString TakeLastWord() {
    rest_ = rest_.trimmed();
    const int start = rest_.lastIndexOf(QLatin1Char(' '));
    const QString word = rest_.mid(start + 1);
    rest_ = start < 0 ? QString() : rest_.left(start);
    return word;
  }
  QString TakeRest() {
    const QString rest = rest_.trimmed();
    rest_.clear();
    return rest;
  }
  // The text after the verb, including blanks.
  QString TakeRaw() { return std::exchange(rest_, QString()); }
  bool IsEmpty() const { return rest_.trimmed().isEmpty(); }

 private:
  QString rest_;
};

// Each reader fills the command from the words and returns the error, or an empty string.
using Problem = QString;
using Reader = Problem (*)(Words* words, ScriptCommand* command);

std::optional<QPointF> ParsePair(const QString& text, QLatin1Char separator) {
  const QStringList parts = text.split(separator);
  if (parts.size() != 2) return std::nullopt;
  bool is_x = false;
  bool is_y = false;
  const QPointF point(qt::ToDouble(parts[0], &is_x), qt::ToDouble(parts[1], &is_y));
  if (!is_x || !is_y) return std::nullopt;
  return point;
}

Problem ReadPoint(Words* words, ScriptCommand* command) {
  const QString word = words->TakeWord();
  const auto point = ParsePair(word, QLatin1Char(','));
  if (!point) return QStringLiteral("expected a point such as 640,360, found \"%1\"").arg(word);
  command->point = *point;
  return {};
}

Problem ReadNumber(Words* words, ScriptCommand* command) {
  const QString word = words->TakeWord();
  bool is_number = false;
  command->number = qt::ToInt(word, &is_number);
  return is_number ? Problem() : QStringLiteral("expected a whole number, found \"%1\"").arg(word);
}

Problem ReadDuration(Words* words, ScriptCommand* command) {
  const Problem problem = ReadNumber(words, command);
  if (!problem.isEmpty()) return problem;
  return command->number >= 0 ? Problem() : QStringLiteral("a time in milliseconds is not negative");
}

// Not of NaN.
bool FitsInt(double v) { return std::abs(v) <= std::numeric_limits<int>::max(); }

Problem ReadSize(Words* words, ScriptCommand* command) {
  const QString word = words->TakeWord();
  const auto size = ParsePair(word, QLatin1Char('x'));
  const bool is_size = size && FitsInt(size->x()) && FitsInt(size->y());
  if (!is_size) return QStringLiteral("expected a size such as 1280x720, found \"%1\"").arg(word);
  const QPoint sides = Rounded(*size);
  command->size = QSize(sides.x(), sides.y());
  return {};
}

Problem ReadFlag(Words* words, ScriptCommand* command) {
  const QString word = words->TakeWord();
  command->flag = word == QLatin1String("on");
  if (command->flag || word == QLatin1String("off")) return {};
  return QStringLiteral("expected on or off, found \"%1\"").arg(word);
}

Problem ReadText(Words* words, ScriptCommand* command) {
  command->text = words->TakeRest();
  return command->text.isEmpty() ? QStringLiteral("expected a text") : Problem();
}

Problem ReadRawText(Words* words, ScriptCommand* command) {
  command->text = words->TakeRaw();
  return command->text.isEmpty() ? QStringLiteral("expected a text") : Problem();
}

Problem ReadOptionalText(Words* words, ScriptCommand* command) {
  command->text = words->TakeRest();
  return {};
}

Problem ReadNothing(Words* /*words*/, ScriptCommand* /*command*/) { return {}; }

Problem ReadKey(Words* words, ScriptCommand* command) {
  const QString name = words->TakeRest();
  const auto key = tavikeymapmanager::KeyFromName(name);
  if (!key || key->device != tavikeymapmanager::keywords::kDeviceKeyboard) {
    const QString nearest = tavikeymapmanager::NearestKeyName(name);
    const QString hint = nearest.isEmpty() ? QString() : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
    return QStringLiteral("\"%1\" is not a key of a keyboard%2").arg(name, hint);
  }
  command->key = *key;
  return {};
}

// "left 640,360", "side 1 640,360"
Problem ReadButtonAndPoint(Words* words, ScriptCommand* command) {
  Words point(words->TakeLastWord());
  const QString button = words->TakeRest();
  QStringList name = button.split(QLatin1Char(' '));
  for (QString& word : name) word = word.left(1).toUpper() + word.mid(1);
  const auto key = tavikeymapmanager::KeyFromName(QStringLiteral("Mouse ") + name.join(QLatin1Char(' ')));
  if (!key) return QStringLiteral("expected left, right, middle or side 1, found \"%1\"").arg(button);
  command->key = *key;
  return ReadPoint(&point, command);
}

Problem ReadNumberAndPoint(Words* words, ScriptCommand* command) {
  const Problem problem = ReadNumber(words, command);
  return problem.isEmpty() ? ReadPoint(words, command) : problem;
}

Problem ReadNumberAndFlag(Words* words, ScriptCommand* command) {
  const Problem problem = ReadNumber(words, command);
  return problem.isEmpty() ? ReadFlag(words, command) : problem;
}

Problem ReadTouches(Words* words, ScriptCommand* command) {
  while (!words->IsEmpty()) {
    const QString word = words->TakeWord();
    const int colon = word.indexOf(QLatin1Char(':'));
    bool is_id = false;
    ScriptTouch touch;
    touch.id = qt::ToInt(word.left(colon), &is_id);
    const auto point = ParsePair(word.mid(colon + 1), QLatin1Char(','));
    if (colon < 0 || !is_id || !point)
      return QStringLiteral("expected a touch such as 1:640,360, found \"%1\"").arg(word);
    touch.point = *point;
    command->touches.append(touch);
  }
  return {};
}

Problem ReadFull(Words* words, ScriptCommand* command) {
  const QString word = words->TakeWord();
  command->flag = word == QLatin1String("full");
  return command->flag || word.isEmpty() ? Problem()
                                         : QStringLiteral("expected full or nothing, found \"%1\"").arg(word);
}

struct Verb {
  const char* words;
  Kind kind;
  Reader read;
};

// A verb of two words comes before a verb that is its first word.
const Verb kVerbs[] = {
    {"down", Kind::kKeyDown, ReadKey},
    {"repeat", Kind::kKeyRepeat, ReadKey},
    {"up", Kind::kKeyUp, ReadKey},
    {"wait", Kind::kWait, ReadDuration},
    {"mouse down", Kind::kMouseDown, ReadButtonAndPoint},
    {"mouse double", Kind::kMouseDouble, ReadButtonAndPoint},
    {"mouse up", Kind::kMouseUp, ReadButtonAndPoint},
    {"move", Kind::kMove, ReadPoint},
    {"wheel", Kind::kWheel, ReadNumberAndPoint},
    {"rel", Kind::kRelative, ReadPoint},
    {"touch begin", Kind::kTouchBegin, ReadTouches},
    {"touch update", Kind::kTouchUpdate, ReadTouches},
    {"touch end", Kind::kTouchEnd, ReadNothing},
    {"type", Kind::kType, ReadRawText},
    {"commit", Kind::kCommit, ReadRawText},
    {"compose", Kind::kCompose, ReadRawText},
    {"joy down", Kind::kJoyDown, ReadText},
    {"joy up", Kind::kJoyUp, ReadText},
    {"joy axis", Kind::kJoyAxis, ReadNumberAndPoint},
    {"reset", Kind::kReset, ReadFull},
    {"display", Kind::kDisplay, ReadNumber},
    {"keymap", Kind::kKeymap, ReadOptionalText},
    {"joymap", Kind::kJoymap, ReadOptionalText},
    {"package", Kind::kPackage, ReadOptionalText},
    {"back", Kind::kBack, ReadNumber},
    {"window", Kind::kWindow, ReadSize},
    {"guest", Kind::kGuest, ReadSize},
    {"touchpanel", Kind::kTouchpanel, ReadSize},
    {"rotation", Kind::kRotation, ReadNumber},
    {"textfield", Kind::kTextField, ReadFlag},
    {"escape back", Kind::kEscapeBack, ReadFlag},
    {"transparent", Kind::kTransparent, ReadNumberAndFlag},
};

const Verb* FindVerb(const QString& text) {
  for (const Verb& verb : kVerbs) {
    const QLatin1String words(verb.words);
    if (!text.startsWith(words)) continue;
    if (text.size() == words.size() || text.at(words.size()) == QLatin1Char(' ')) return &verb;
  }
  return nullptr;
}

void ParseCommand(const QString& text, int line, int column, Script* script) {
  const auto fail = [&](const QString& message) { script->errors.append({line, column, message}); };
  const Verb* verb = FindVerb(text);
  if (!verb) return fail(QStringLiteral("unknown command \"%1\"").arg(text.section(QLatin1Char(' '), 0, 0)));
  ScriptCommand command;
  command.kind = verb->kind;
  command.line = line;
  command.column = column;
  Words words(text.mid(static_cast<int>(qstrlen(verb->words)) + 1));
  const Problem problem = verb->read(&words, &command);
  if (!problem.isEmpty()) return fail(problem);
  if (!words.IsEmpty()) return fail(QStringLiteral("unexpected \"%1\"").arg(words.TakeRest()));
  script->commands.append(command);
}

}  // namespace

Script ParseScript(const QString& text) {
  Script script;
  const QStringList lines = text.split(QLatin1Char('\n'));
  for (int i = 0; i < lines.size(); ++i) {
    const QString line = lines[i].section(QLatin1Char('#'), 0, 0);
    int start = 0;
    for (const QString& part : line.split(QLatin1Char(';'))) {
      const QString command = part.trimmed();
      const int indent = part.indexOf(command);
      if (!command.isEmpty()) ParseCommand(command, i + 1, start + indent + 1, &script);
      start += part.size() + 1;
    }
  }
  return script;
}

}  // namespace tavi
