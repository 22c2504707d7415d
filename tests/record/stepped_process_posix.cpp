#include <csignal>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/record/stepped_process.h"

namespace taviinputmanager {

SteppedProcess::SteppedProcess(const std::function<void()>& what) : child_(fork()) {
  if (child_ == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(1);
    raise(SIGSTOP);
    what();
    _exit(0);
  }
  is_running_ = child_ > 0;
  Wait();
  if (is_running_) ptrace(PTRACE_SETOPTIONS, child_, nullptr, PTRACE_O_TRACESYSGOOD);  // calls are not signals
}

bool SteppedProcess::Step(int count) {
  for (; is_running_ && count > 0; --count) {
    ptrace(PTRACE_SYSCALL, child_, nullptr, nullptr);
    Wait();
  }
  return is_running_;
}

SteppedProcess::Call SteppedProcess::BeginningCall() const {
  __ptrace_syscall_info info{};
  ptrace(PTRACE_GET_SYSCALL_INFO, child_, sizeof info, &info);
  if (info.op != PTRACE_SYSCALL_INFO_ENTRY) return {};
  return {static_cast<long>(info.entry.nr), static_cast<unsigned long>(info.entry.args[2])};
}

bool SteppedProcess::Finish() {
  if (!is_running_) return true;
  ptrace(PTRACE_DETACH, child_, nullptr, nullptr);
  return WIFEXITED(Wait());
}

bool SteppedProcess::FinishWithin(unsigned bytes) {
  const rlimit limit{bytes, bytes};
  if (is_running_) prlimit(child_, RLIMIT_FSIZE, &limit, nullptr);
  return Finish();
}

void SteppedProcess::Kill() {
  if (!is_running_) return;
  kill(child_, SIGKILL);
  Wait();
}

int SteppedProcess::Wait() {
  int status = 0;
  if (is_running_) is_running_ = waitpid(child_, &status, 0) == child_ && WIFSTOPPED(status);
  return status;
}

}  // namespace taviinputmanager
