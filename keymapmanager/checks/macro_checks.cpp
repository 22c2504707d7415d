#include "keymapmanager/checks/macro_checks.h"

#include <algorithm>
#include <optional>

#include <QPointF>
#include <QRegularExpression>
#include <QStringList>

#include "keymapmanager/fields/record_reader.h"
#include "keymapmanager/nearest_word.h"
#include "keymapmanager/yaml/yaml_scalar.h"
#include "qt/numbers.h"

namespace tavikeymapmanager {

namespace {

const QString kStartLoop = QStringLiteral("start_loop");
const QString kStopLoop = QStringLiteral("stop_loop");
const QString kUntilRelease = QStringLiteral("until_release");

QStringList AllWords() {
  QStringList words;
  for (const MacroWord& row : kMacroWords) words += QString::fromLatin1(row.word);
  return words;
}

// The row of a command word with or without an argument; if the word exists only in the other form, that row.
const MacroWord* FindWord(const QString& word, bool has_argument) {
  const MacroWord* found = nullptr;
  for (const MacroWord& row : kMacroWords) {
    if (word != QLatin1String(row.word)) continue;
    found = &row;
    if ((row.argument != MacroArgument::kNone) == has_argument) return found;
  }
  return found;
}

bool IsInteger(const QString& text) {
  bool is_number = false;
  qt::ToInt(text, &is_number);
  return is_number;
}

// A negative pause; its timer would never fire.
bool IsEndlessPause(MacroVerb verb, const QString& argument) {
  return (verb == MacroVerb::kSleep || verb == MacroVerb::kDefaultSleepTime) && qt::ToInt(argument) < 0;
}

bool HasBlank(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

bool IsNumber(const QString& text) {
  bool is_number = false;
  qt::ToDouble(text, &is_number);
  return is_number;
}

// The numbers of "(x,y)", unless both are 0; nothing for any other text.
std::optional<QPointF> PointOf(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A\\(([^,()]+),([^,()]+)\\)\\z"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch() || !IsNumber(match.captured(1)) || !IsNumber(match.captured(2))) return {};
  const double x = qt::ToDouble(match.captured(1));
  const double y = qt::ToDouble(match.captured(2));
  if (x == 0 && y == 0) return {};
  return QPointF(x, y);
}

bool IsOnDisplay(const QPointF& point) { return point.x() >= 0 && point.x() <= 1 && point.y() >= 0 && point.y() <= 1; }

// The error in the point of a command; empty if there is none.
QString FaultOfPoint(const QString& text) {
  if (text == QLatin1String("mouse")) return {};
  const std::optional<QPointF> point = PointOf(text);
  if (!point) {
    const QString hint = HasBlank(text) ? QStringLiteral(", without blanks around it") : QString();
    return QStringLiteral("'%1' is not a point; a point is (x,y), not (0,0), or mouse%2").arg(Shown(text), hint);
  }
  if (IsOnDisplay(*point)) return {};
  return QStringLiteral("'%1' is outside the display: x and y are fractions from 0 to 1, not pixels").arg(Shown(text));
}

}  // namespace

void MacroChecks::Check(const YamlNode& item, const QString& field) {
  const YamlNode* commands = FindValue(item, field);
  if (commands == nullptr) return;
  loop_ = Loop();
  for (const YamlNode& node : commands->children) {
    if (diagnostics_->IsFull()) return;
    CheckCommand(node);
  }
  if (loop_.start != nullptr) {
    diagnostics_->Warning(loop_.start->span, QStringLiteral("a loop without '%1' runs once").arg(kStopLoop));
  }
}

void MacroChecks::CheckCommand(const YamlNode& node) {
  const QStringList parts = node.text.split(QLatin1Char(':'));
  const QString& word = parts.first();
  const MacroWord* row = FindWord(word, parts.size() > 1);
  if (row == nullptr) {
    ++loop_.commands;
    ReportUnknown(node, word);
    return;
  }
  CheckLoop(node, word, *row);
  if (row->argument == MacroArgument::kAny) return;
  const int expected = row->argument == MacroArgument::kNone ? 1 : 2;
  if (parts.size() == expected) {
    if (expected == 2) CheckArgument(node, *row, parts[1]);
    return;
  }
  const QString form =
      expected == 1 ? QStringLiteral("takes no argument") : QStringLiteral("takes one argument after ':'");
  diagnostics_->Warning(node.span, QStringLiteral("'%1' %2").arg(word, form));
}

void MacroChecks::ReportUnknown(const YamlNode& node, const QString& word) {
  const QString hint = HasBlank(word) ? QStringLiteral("; a word has no blanks in or around it") : QString();
  const QString meant = DidYouMean(word.simplified().replace(QLatin1Char(' '), QLatin1Char('_')), AllWords());
  diagnostics_->Warning(node.span, QStringLiteral("unknown command '%1'%2%3").arg(Shown(word), hint, meant));
}

void MacroChecks::CheckArgument(const YamlNode& node, const MacroWord& row, const QString& argument) {
  const QString word = QString::fromLatin1(row.word);
  switch (row.argument) {
    case MacroArgument::kInteger:
      if (IsEndlessPause(row.verb, argument)) {
        diagnostics_->Warning(node.span, QStringLiteral("'%1': a negative time stops the macro forever").arg(word));
      }
      if (IsInteger(argument)) return;
      diagnostics_->Warning(node.span, QStringLiteral("'%1': '%2' is not a whole number").arg(word, Shown(argument)));
      return;
    case MacroArgument::kIntegerOrWord:
      if (IsInteger(argument) || argument == QLatin1String(row.argument_word)) return;
      diagnostics_->Warning(node.span, QStringLiteral("'%1': expected a whole number or '%2', got '%3'")
                                           .arg(word, QLatin1String(row.argument_word), Shown(argument)));
      return;
    case MacroArgument::kNumber:
      if (IsNumber(argument)) return;
      diagnostics_->Warning(node.span, QStringLiteral("'%1': '%2' is not a number").arg(word, Shown(argument)));
      return;
    case MacroArgument::kPoint: CheckPoints(node, argument, false); return;
    case MacroArgument::kPoints: CheckPoints(node, argument, true); return;
    case MacroArgument::kText:
    case MacroArgument::kNone:
    case MacroArgument::kAny: return;
  }
}

void MacroChecks::CheckPoints(const YamlNode& node, const QString& points, bool allows_many) {
  const QStringList parts = allows_many ? points.split(QLatin1Char(';')) : QStringList(points);
  for (const QString& part : parts) {
    const QString fault = FaultOfPoint(part);
    if (!fault.isEmpty()) diagnostics_->Warning(node.span, fault);
  }
}

void MacroChecks::CheckLoop(const YamlNode& node, const QString& word, const MacroWord& row) {
  if (word == kStopLoop) {
    CloseLoop(node);
    return;
  }
  if (word == kStartLoop) {
    if (loop_.start != nullptr) {
      diagnostics_->Warning(node.span, QStringLiteral("loops do not nest: this one ends the previous one"));
    }
    loop_ = Loop();
    loop_.start = &node;
    loop_.is_endless = node.text == kStartLoop + QLatin1Char(':') + kUntilRelease;
    return;
  }
  ++loop_.commands;
  loop_.has_pause = loop_.has_pause || row.pauses;
}

void MacroChecks::CloseLoop(const YamlNode& node) {
  if (loop_.start == nullptr) {
    diagnostics_->Warning(node.span, QStringLiteral("no loop is open here"));
  } else if (loop_.commands < 2) {
    diagnostics_->Warning(loop_.start->span, QStringLiteral("a loop of fewer than two commands runs once"));
  } else if (loop_.is_endless && !loop_.has_pause) {
    diagnostics_->Warning(loop_.start->span,
                          QStringLiteral("this loop never ends and blocks all input: put a 'sleep' in it"));
  }
  loop_ = Loop();
}

}  // namespace tavikeymapmanager
