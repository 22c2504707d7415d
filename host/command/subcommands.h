// The subcommands of the program.
#ifndef HOST_COMMAND_SUBCOMMANDS_H_
#define HOST_COMMAND_SUBCOMMANDS_H_

#include <QStringList>

namespace tavi {

// The start of the program as a subcommand sees it. An application object needs `argc` and `argv`, which outlive it.
struct Invocation {
  int& argc;
  char** argv = nullptr;
  QStringList arguments;  // after the subcommand
};

struct Subcommand {
  const char* name;     // "check"; two words in a group: "record play"
  const char* summary;  // one line
  const char* help;     // the help page from "Usage: " on, with a shell example at the end
  int (*run)(const Invocation& invocation);
};

// Finds the subcommand and runs it; returns the program's exit status.
int RunProgram(int& argc, char** argv);

}  // namespace tavi

#endif  // HOST_COMMAND_SUBCOMMANDS_H_
