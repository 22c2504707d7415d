// One command of a macro, read.
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
  QString argument;    // the text behind the ":"; empty for a command that takes none
  int integer;         // the argument, base 10; what cannot be read is 0
  MacroPoints points;  // the argument of a command that takes points

  int Integer() const { return integer; }
  double Number() const { return argument.toDouble(); }
};

// Nothing for a command that is skipped: an unknown word, or a word that takes an argument with none or with more than
// one. Case matters, and no blank is trimmed.
std::optional<MacroCommand> ParseMacroCommand(const QString& text);

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_COMMAND_H_
