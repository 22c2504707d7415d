// A command that gets the lines on its standard input.
#ifndef HOST_TARGET_COMMAND_LINK_H_
#define HOST_TARGET_COMMAND_LINK_H_

#include <memory>

#include <QString>

namespace tavi {

class TargetLink;

// Why commands cannot be started on this system, or an empty string.
QString CommandLinkProblem();

// A link to `/bin/sh -c command`. Its standard input is a socket, so that it can neither block nor end this program.
// The command ignores Ctrl+C and hangups, which only concern this program: it still gets the last lines, and exits when
// its input ends. Its standard output and error are reported.
std::unique_ptr<TargetLink> MakeCommandLink(const QString& command);

}  // namespace tavi

#endif  // HOST_TARGET_COMMAND_LINK_H_
