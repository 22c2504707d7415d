// What the program can do, by the word behind its name.
#ifndef HOST_COMMAND_SUBCOMMANDS_H_
#define HOST_COMMAND_SUBCOMMANDS_H_

#include <QStringList>

namespace tavi {

// The start of the program as a subcommand sees it. An application object needs the first two, which outlive it.
struct Invocation {
  int& argc;
  char** argv = nullptr;
  QStringList arguments;  // behind the subcommand
};

struct Subcommand {
  const char* name;     // "check"; of a group two words, "record play"
  const char* summary;  // one line
  const char* help;     // the page from "Usage: " on, an example for the shell at its end
  int (*run)(const Invocation& invocation);
};

// Finds the subcommand and runs it; the result is the program's exit status.
int RunProgram(int& argc, char** argv);

}  // namespace tavi

#endif  // HOST_COMMAND_SUBCOMMANDS_H_
