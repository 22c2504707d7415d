// The program at the head of a pipeline whose reader has exited.
#include <array>
#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "test_folders.h"

namespace tavi {
namespace {

using Pipe = std::array<int, 2>;  // the ends to read and to write

Pipe MakePipe() {
  Pipe ends{};
  EXPECT_EQ(pipe(ends.data()), 0);
  return ends;
}

// A started program has the settings of a shell: the signal kills, and the caller decides whether it is blocked.
[[noreturn]] void BecomeProgram(int output, int errors, bool is_blocked) {
  std::signal(SIGPIPE, SIG_DFL);
  sigset_t only;
  sigemptyset(&only);
  sigaddset(&only, SIGPIPE);
  sigprocmask(is_blocked ? SIG_BLOCK : SIG_UNBLOCK, &only, nullptr);
  dup2(output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  execl(TAVI_PROGRAM, "tavi", "keys", nullptr);
  _exit(127);
}

std::string ReadAll(int end) {
  std::string text;
  std::array<char, 256> buffer{};
  for (ssize_t count = 0; (count = read(end, buffer.data(), buffer.size())) > 0;) {
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return text;
}

struct End {
  int status = 0;
  std::string errors;
};

// Nobody reads the program's output: the first line meets a closed pipe.
End RunWithoutReader(bool is_blocked) {
  const Pipe output = MakePipe();
  const Pipe errors = MakePipe();
  close(output[0]);
  const pid_t child = fork();
  if (child == 0) BecomeProgram(output[1], errors[1], is_blocked);
  close(output[1]);
  close(errors[1]);
  End end;
  end.errors = ReadAll(errors[0]);
  close(errors[0]);
  EXPECT_EQ(waitpid(child, &end.status, 0), child);
  return end;
}

TEST(ClosedPipe, EndsTheProgramQuietly) {
  for (const bool is_blocked : {false, true}) {
    const End end = RunWithoutReader(is_blocked);
    EXPECT_TRUE(WIFSIGNALED(end.status)) << "status " << end.status << ", blocked by its starter: " << is_blocked;
    EXPECT_EQ(WTERMSIG(end.status), SIGPIPE);
    EXPECT_EQ(end.errors, "");
  }
}

}  // namespace
}  // namespace tavi
