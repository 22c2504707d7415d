// Macros from any text, without those that never return.
#ifndef FUZZ_BOUNDED_MACRO_H_
#define FUZZ_BOUNDED_MACRO_H_

#include <QString>
#include <QStringList>

#include "simulators/macro/macro_command.h"

namespace taviinputmanager::fuzz {

constexpr int kMaxMacroCommands = 40;

// One command per line. A loop without a pause may never return, so each gets one.
inline QStringList BoundedMacro(const QString& text) {
  QStringList commands;
  for (const QString& line : text.split('\n')) {
    if (commands.size() >= kMaxMacroCommands) break;
    commands.append(line);
    const auto command = ParseMacroCommand(line);
    if (command && command->verb == tavikeymapmanager::MacroVerb::kStartLoop) commands.append("sleep:3");
  }
  return commands;
}

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_BOUNDED_MACRO_H_
