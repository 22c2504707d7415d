#include "keymapmanager/macro_checks.h"

#include <QRegularExpression>
#include <QStringList>

#include "keymapmanager/nearest_word.h"
#include "keymapmanager/record_reader.h"

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

// The row of a word with or without an argument; a word that only stands the other way round gives that row.
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
  text.toInt(&is_number);
  return is_number;
}

bool IsNumber(const QString& text) {
  bool is_number = false;
  text.toDouble(&is_number);
  return is_number;
}

// "mouse", or "(x,y)" with two numbers that are not both 0.
bool IsPoint(const QString& text) {
  if (text == QLatin1String("mouse")) return true;
  static const QRegularExpression form(QStringLiteral("\\A\\(([^,()]+),([^,()]+)\\)\\z"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch() || !IsNumber(match.captured(1)) || !IsNumber(match.captured(2))) return false;
  return match.captured(1).toDouble() != 0 || match.captured(2).toDouble() != 0;
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
    diagnostics_->Warning(
        node.span, QStringLiteral("unknown command '%1'%2").arg(word.simplified(), DidYouMean(word, AllWords())));
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
      expected == 1 ? QStringLiteral("takes no argument") : QStringLiteral("takes one argument behind ':'");
  diagnostics_->Warning(node.span, QStringLiteral("'%1' %2").arg(word, form));
}

void MacroChecks::CheckArgument(const YamlNode& node, const MacroWord& row, const QString& argument) {
  const QString word = QString::fromLatin1(row.word);
  switch (row.argument) {
    case MacroArgument::kInteger:
      if (IsInteger(argument)) return;
      diagnostics_->Warning(node.span, QStringLiteral("'%1': '%2' is no whole number").arg(word, argument));
      return;
    case MacroArgument::kIntegerOrWord:
      if (IsInteger(argument) || argument == QLatin1String(row.argument_word)) return;
      diagnostics_->Warning(node.span, QStringLiteral("'%1': expected a whole number or '%2', got '%3'")
                                           .arg(word, QLatin1String(row.argument_word), argument));
      return;
    case MacroArgument::kNumber:
      if (IsNumber(argument)) return;
      diagnostics_->Warning(node.span, QStringLiteral("'%1': '%2' is no number").arg(word, argument));
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
    if (IsPoint(part)) continue;
    diagnostics_->Warning(
        node.span, QStringLiteral("'%1' is no point; a point is (x,y), not (0,0), or mouse").arg(part.simplified()));
  }
}

void MacroChecks::CheckLoop(const YamlNode& node, const QString& word, const MacroWord& row) {
  if (word == kStopLoop) {
    CloseLoop(node);
    return;
  }
  if (word == kStartLoop) {
    if (loop_.start != nullptr) {
      diagnostics_->Warning(node.span, QStringLiteral("loops do not nest: this one ends the one before"));
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
                          QStringLiteral("this loop never ends and stops all input: put a 'sleep' in it"));
  }
  loop_ = Loop();
}

}  // namespace tavikeymapmanager
