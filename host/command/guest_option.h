// The options --guest, --allow-remote and --size, for commands that send lines to guests.
//
// Threads: main.
#ifndef HOST_COMMAND_GUEST_OPTION_H_
#define HOST_COMMAND_GUEST_OPTION_H_

#include <optional>

#include <QString>
#include <QVector>

#include "host/command/command_line.h"
#include "host/target/target_address.h"

namespace tavi {

// The last --size. Older command lines give it as --guest, so a --guest value that is a size or "view" counts as well.
std::optional<GivenArgument> FindSize(const ParsedArguments& arguments);

// The targets of each --guest, in order. Returns the error, or an empty string.
QString TakeTargets(const ParsedArguments& arguments, QVector<TargetAddress>* targets);

}  // namespace tavi

#endif  // HOST_COMMAND_GUEST_OPTION_H_
