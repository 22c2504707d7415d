// The lines of a reset that matter to tests of gamepads.
#ifndef TESTS_HANDLERS_WITHOUT_SWEEP_H_
#define TESTS_HANDLERS_WITHOUT_SWEEP_H_

#include <algorithm>
#include <string>

#include <QStringList>

namespace taviinputmanager {

// The lines, joined, without those that release touch slots.
inline std::string WithoutSweep(QStringList wire) {
  const auto lifts = [](const QString& line) { return line.contains(QLatin1String(":SLOTRELEASE")); };
  wire.erase(std::remove_if(wire.begin(), wire.end(), lifts), wire.end());
  return wire.join('\n').toStdString();
}

}  // namespace taviinputmanager

#endif  // TESTS_HANDLERS_WITHOUT_SWEEP_H_
