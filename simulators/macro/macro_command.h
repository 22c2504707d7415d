// One parsed command of a macro.
#ifndef SIMULATORS_MACRO_MACRO_COMMAND_H_
#define SIMULATORS_MACRO_MACRO_COMMAND_H_

#include <optional>

#include <QString>

#include "keymap/macro_words.h"
#include "qt/numbers.h"
#include "simulators/macro/macro_points.h"

namespace taviinputmanager {

struct MacroCommand {
  MacroCommand(tavikeymapmanager::MacroVerb its_verb, const QString& its_argument)
      : verb(its_verb), argument(its_argument), integer(qt::ToInt(its_argument)) {}

  tavikeymapmanager::MacroVerb verb;
  QString argument;    // the text after the ":"; empty for a command without argument
  int integer;         // the argument, base 10; 0 if it cannot be parsed
  MacroPoints points;  // the argument of a command with points

  int Integer() const { return integer; }
  double Number() const { return qt::ToDouble(argument); }
};

// Nothing for a command that is skipped: an unknown word, or one whose argument is missing or has several parts. Case
// matters, and blanks are not trimmed.
std::optional<MacroCommand> ParseMacroCommand(const QString& text);

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_COMMAND_H_
