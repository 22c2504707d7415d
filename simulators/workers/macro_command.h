// One command of a macro, read.
#ifndef SIMULATORS_WORKERS_MACRO_COMMAND_H_
#define SIMULATORS_WORKERS_MACRO_COMMAND_H_

#include <optional>

#include <QString>

#include "keymap/macro_words.h"

namespace taviinputmanager {

struct MacroCommand {
  tavikeymapmanager::MacroVerb verb;
  QString argument;  // the text behind the ":"; empty for a command that takes none

  // Base 10; what cannot be read is 0.
  int Integer() const { return argument.toInt(); }
  double Number() const { return argument.toDouble(); }
};

// Nothing for a command that is skipped: an unknown word, or a word that takes an argument with none or with more than
// one. Case matters, and no blank is trimmed.
std::optional<MacroCommand> ParseMacroCommand(const QString& text);

}  // namespace taviinputmanager

#endif  // SIMULATORS_WORKERS_MACRO_COMMAND_H_
