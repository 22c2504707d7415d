#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/system/program_end.h"

namespace tavi {

std::vector<ProgramEnd> ProgramEnds() {
  return {{"SIGINT", SIGINT, SIGINT}, {"SIGTERM", SIGTERM, SIGTERM}, {"SIGHUP", SIGHUP, SIGHUP}};
}

void MakeEndable(QProcess* /*program*/) {}

void SendEnd(const QProcess& program, const ProgramEnd& end) {
  kill(static_cast<pid_t>(program.processId()), end.number);
}

void SendEndToThisProgram(const ProgramEnd& end) { kill(getpid(), end.number); }

bool IsStatusOf(int status, const ProgramEnd& end) { return WIFSIGNALED(status) && WTERMSIG(status) == end.number; }

}  // namespace tavi
