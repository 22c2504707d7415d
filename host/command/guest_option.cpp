#include "host/command/guest_option.h"

namespace tavi {

namespace {

const QString kGuest = QStringLiteral("--guest");
const QString kSize = QStringLiteral("--size");
const QString kAllowRemote = QStringLiteral("--allow-remote");

bool IsSize(const QString& value) { return value == QLatin1String("view") || !ParseSize(value).isEmpty(); }

}  // namespace

std::optional<GivenArgument> FindSize(const ParsedArguments& arguments) {
  std::optional<GivenArgument> found;
  for (const GivenArgument& given : arguments.in_order) {
    if (given.option == kSize || (given.option == kGuest && IsSize(given.value))) found = given;
  }
  return found;
}

QString TakeTargets(const ParsedArguments& arguments, QVector<TargetAddress>* targets) {
  const bool allow_remote = arguments.options.contains(kAllowRemote);
  for (const GivenArgument& given : arguments.in_order) {
    if (given.option != kGuest || IsSize(given.value)) continue;
    const ParsedTarget parsed = ParseTarget(given.value, allow_remote);
    if (!parsed.problem.isEmpty()) return QStringLiteral("%1: %2").arg(kGuest, parsed.problem);
    targets->append(parsed.address);
  }
  return {};
}

}  // namespace tavi
