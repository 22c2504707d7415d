#include "simulators/macro/macro_command.h"

#include <QLatin1String>

namespace taviinputmanager {

using tavikeymapmanager::kMacroWords;
using tavikeymapmanager::MacroArgument;
using tavikeymapmanager::MacroMatch;
using tavikeymapmanager::MacroWord;

namespace {

constexpr QLatin1Char kColon(':');

bool IsMatch(const MacroWord& row, const QString& text) {
  const QLatin1String word(row.word);
  switch (row.match) {
    case MacroMatch::kEqual: return text == word;
    case MacroMatch::kPrefix: return text.startsWith(word);
    case MacroMatch::kPrefixWithColon:
      return text.startsWith(word) && text.size() > word.size() && text[word.size()] == kColon;
  }
  return false;
}

const MacroWord* FindWord(const QString& text) {
  for (const MacroWord& row : kMacroWords) {
    if (IsMatch(row, text)) return &row;
  }
  return nullptr;
}

bool TakesArgument(const MacroWord& row) {
  return row.argument != MacroArgument::kNone && row.argument != MacroArgument::kAny;
}

}  // namespace

std::optional<MacroCommand> ParseMacroCommand(const QString& text) {
  const MacroWord* row = FindWord(text);
  if (!row) return std::nullopt;
  if (!TakesArgument(*row)) return MacroCommand{row->verb, QString()};
  const auto colon = text.indexOf(kColon);
  if (colon < 0) return std::nullopt;                             // no argument
  if (text.indexOf(kColon, colon + 1) >= 0) return std::nullopt;  // two
  MacroCommand command{row->verb, text.mid(colon + 1)};
  if (row->argument == MacroArgument::kPoints) command.points = MacroPoints(command.argument);
  return command;
}

}  // namespace taviinputmanager
