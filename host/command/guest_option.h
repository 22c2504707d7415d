// What the options --guest, --allow-remote and --size have in common for commands that play lines somewhere.
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

// --size as it was given last. --guest stood for it before there were targets, and still does where its value is a size
// or "view".
std::optional<GivenArgument> FindSize(const ParsedArguments& arguments);

// The targets of each --guest, in their order. Returns what is wrong, or nothing.
QString TakeTargets(const ParsedArguments& arguments, QVector<TargetAddress>* targets);

}  // namespace tavi

#endif  // HOST_COMMAND_GUEST_OPTION_H_
