#include "host/command/play_command.h"
#include "host/system/console.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi play\n"
    "\n"
    "Plays with the keyboards, mice and gamepads of this computer, without a window. This\n"
    "build does not include the command: it needs Linux and libevdev.\n"
    "\n"
    "Exit status: 0 when this page was asked for, 2 for everything else.\n"
    "\n"
    "Example: tavi play --help\n";

int Run(const Invocation& /*invocation*/) {
  PrintError(QStringLiteral("tavi play: this program was built without it; it needs Linux and libevdev\n"));
  return kExitUsage;
}

}  // namespace

Subcommand PlayCommand() { return {"play", "plays without a window (not in this build)", kHelp, Run}; }

}  // namespace tavi
