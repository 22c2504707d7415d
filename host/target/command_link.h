// A command that gets the lines on its standard input.
#ifndef HOST_TARGET_COMMAND_LINK_H_
#define HOST_TARGET_COMMAND_LINK_H_

#include <memory>

#include <QString>

namespace tavi {

class TargetLink;

// Why commands cannot be started on this system, or nothing.
QString CommandLinkProblem();

// A link to `/bin/sh -c command`. Its standard input is a socket, so that it neither blocks this program nor ends it.
// It passes over Ctrl+C and the end of the terminal, which are this program's affair: the last lines still reach it,
// and then the end of its input ends it. What it writes on its standard output and error is told.
std::unique_ptr<TargetLink> MakeCommandLink(const QString& command);

}  // namespace tavi

#endif  // HOST_TARGET_COMMAND_LINK_H_
