#include "host/play/control_words.h"

#include <iterator>

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include "keymapmanager/nearest_word.h"

namespace tavi {

namespace {

using Verb = ControlWords::Verb;

enum class Argument { kNone, kFile, kName, kRotation, kSize, kSwitch };

struct VerbRow {
  const char* word;
  Verb verb;
  Argument argument;
  const char* expected;  // after the word
};

constexpr VerbRow kVerbs[] = {
    {"keymap", Verb::kKeymap, Argument::kFile, "a file"},
    {"app", Verb::kApp, Argument::kName, "the name of an app"},
    {"reset", Verb::kReset, Argument::kNone, ""},
    {"rotation", Verb::kRotation, Argument::kRotation, "0, 90, 180 or 270"},
    {"size", Verb::kSize, Argument::kSize, "a size such as 1280x720"},
    {"text", Verb::kText, Argument::kSwitch, "on or off"},
    {"pause", Verb::kPause, Argument::kNone, ""},
    {"resume", Verb::kResume, Argument::kNone, ""},
    {"record", Verb::kRecord, Argument::kFile, "a file"},
    {"replay", Verb::kReplay, Argument::kFile, "a file"},
    {"stop", Verb::kStop, Argument::kNone, ""},
    {"state", Verb::kState, Argument::kNone, ""},
    {"quit", Verb::kQuit, Argument::kNone, ""},
};

constexpr int kLongestSide = 16384;

struct Split {
  QString word;
  QString rest;  // a file name may contain blanks
};

Split SplitLine(const QString& line) {
  const QString trimmed = line.trimmed();
  const int blank = trimmed.indexOf(QLatin1Char(' '));
  if (blank < 0) return {trimmed, {}};
  return {trimmed.left(blank), trimmed.mid(blank).trimmed()};
}

const VerbRow* FindVerb(const QString& word) {
  for (const VerbRow& row : kVerbs) {
    if (word == QLatin1String(row.word)) return &row;
  }
  return nullptr;
}

QString UnknownWord(const QString& word) {
  QStringList words;
  for (const VerbRow& row : kVerbs) words += QLatin1String(row.word);
  const QString nearest = tavikeymapmanager::NearestWord(word, words);
  const QString hint = nearest.isEmpty() ? QStringLiteral("; there are %1").arg(words.join(QStringLiteral(", ")))
                                         : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
  return QStringLiteral("unknown word \"%1\"").arg(word) + hint;
}

bool TakeRotation(const QString& text, int* degrees) {
  *degrees = text.toInt();
  return QStringList{"0", "90", "180", "270"}.contains(text);
}

bool TakeSide(const QString& text, int* side) {
  *side = text.toInt();
  return *side >= 1 && *side <= kLongestSide;
}

bool TakeSize(const QString& text, QSize* size) {
  static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
  const QRegularExpressionMatch match = form.match(text);
  return match.hasMatch() && TakeSide(match.captured(1), &size->rwidth()) &&
         TakeSide(match.captured(2), &size->rheight());
}

bool TakeSwitch(const QString& text, bool* is_on) {
  *is_on = text == QLatin1String("on");
  return *is_on || text == QLatin1String("off");
}

bool TakeArgument(Argument argument, ControlWords* words) {
  switch (argument) {
    case Argument::kNone: return words->text.isEmpty();
    case Argument::kFile:
    case Argument::kName: return !words->text.isEmpty();
    case Argument::kRotation: return TakeRotation(words->text, &words->rotation);
    case Argument::kSize: return TakeSize(words->text, &words->size);
    case Argument::kSwitch: return TakeSwitch(words->text, &words->is_on);
  }
  return false;
}

}  // namespace

ControlWords ParseControlWords(const QString& line) {
  ControlWords words;
  const Split split = SplitLine(line);
  const VerbRow* row = FindVerb(split.word);
  if (!row) {
    words.problem = UnknownWord(split.word);
    return words;
  }
  words.verb = row->verb;
  words.text = split.rest;
  if (TakeArgument(row->argument, &words)) return words;
  words.problem = row->argument == Argument::kNone
                      ? QStringLiteral("nothing may follow \"%1\"").arg(split.word)
                      : QStringLiteral("\"%1\" needs %2").arg(split.word, QLatin1String(row->expected));
  return words;
}

QString WithAbsoluteFile(const QString& line) {
  const Split split = SplitLine(line);
  const VerbRow* row = FindVerb(split.word);
  const bool has_file = row && row->argument == Argument::kFile && !split.rest.isEmpty();
  if (!has_file) return line;
  return split.word + QLatin1Char(' ') + QFileInfo(split.rest).absoluteFilePath();
}

}  // namespace tavi
