// A list of commands, read once for all the times that it runs.
#ifndef SIMULATORS_MACRO_MACRO_PROGRAM_H_
#define SIMULATORS_MACRO_MACRO_PROGRAM_H_

#include <optional>
#include <vector>

#include <QString>
#include <QStringList>

#include "simulators/macro/macro_command.h"

namespace taviinputmanager {

// Reads nothing twice: a key that plays its macro again finds its list read. Never changes once made.
class MacroProgram {
 public:
  struct Line {
    QString text;
    std::optional<MacroCommand> command;  // nothing: the line is skipped
  };

  explicit MacroProgram(const QStringList& commands);

  // Whether this was read from `commands` and these have not changed since.
  bool IsOf(const QStringList& commands) const { return commands_.isSharedWith(commands); }

  int Size() const { return static_cast<int>(lines_.size()); }
  const Line& At(int index) const { return lines_[static_cast<std::size_t>(index)]; }

  bool HasLoopUntilRelease() const;
  // Of the pauses that name their time, in ms.
  int TotalSleep() const;

 private:
  QStringList commands_;  // shared with whoever gave it
  std::vector<Line> lines_;
};

// Whether a command opens a loop that a release ends.
bool IsLoopUntilRelease(const MacroCommand& command);

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_PROGRAM_H_
