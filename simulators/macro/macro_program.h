// A list of commands, parsed once and run many times.
#ifndef SIMULATORS_MACRO_MACRO_PROGRAM_H_
#define SIMULATORS_MACRO_MACRO_PROGRAM_H_

#include <optional>
#include <vector>

#include <QString>
#include <QStringList>

#include "simulators/macro/macro_command.h"

namespace taviinputmanager {

// Parses no list twice: a key that runs its macro again finds its list parsed. Immutable.
class MacroProgram {
 public:
  struct Line {
    QString text;
    std::optional<MacroCommand> command;  // nothing: the line is skipped
  };

  explicit MacroProgram(const QStringList& commands);

  // Whether this was parsed from `commands` and these have not changed since.
  bool IsOf(const QStringList& commands) const { return commands_.isSharedWith(commands); }

  int Size() const { return static_cast<int>(lines_.size()); }
  const Line& At(int index) const { return lines_[static_cast<std::size_t>(index)]; }

  bool HasLoopUntilRelease() const;
  // The sum of the pauses with a fixed duration, in ms.
  int TotalSleep() const;

 private:
  QStringList commands_;  // shared with the caller
  std::vector<Line> lines_;
};

// Whether a command opens a loop that a release ends.
bool IsLoopUntilRelease(const MacroCommand& command);

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_PROGRAM_H_
