#include "simulators/macro/macro_program.h"

#include <algorithm>

#include <QSet>

#include "core/numbers.h"

namespace taviinputmanager {

using tavikeymapmanager::MacroVerb;

MacroProgram::MacroProgram(const QStringList& commands) : commands_(commands) {
  lines_.reserve(static_cast<std::size_t>(commands.size()));
  QSet<QString> points;  // equal lists share their text, so the comparison is fast
  for (const QString& text : commands) {
    lines_.push_back({text, ParseMacroCommand(text)});
    if (auto& command = lines_.back().command) command->points.text = *points.insert(command->points.text);
  }
}

bool MacroProgram::HasLoopUntilRelease() const {
  return std::any_of(lines_.begin(), lines_.end(),
                     [](const Line& line) { return line.command && IsLoopUntilRelease(*line.command); });
}

int MacroProgram::TotalSleep() const {
  int total = 0;
  for (const Line& line : lines_) {
    if (line.command && line.command->verb == MacroVerb::kSleep) total = AddWrapped(total, line.command->Integer());
  }
  return total;
}

bool IsLoopUntilRelease(const MacroCommand& command) {
  return command.verb == MacroVerb::kStartLoop && command.argument == QLatin1String("until_release");
}

}  // namespace taviinputmanager
