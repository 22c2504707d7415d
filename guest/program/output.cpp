#include "guest/program/output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "guest/program/exit_status.h"

namespace taviguest {

void Output::Print(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() && error_ == 0) error_ = errno;
}

void Output::Tell(const std::string& text) const { TellOf(program_, text); }

void Output::TellOf(const std::string& file, const std::string& text) {
  const std::string line = file + ": " + text + '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void Output::Flush() {
  if (std::fflush(stdout) != 0 && error_ == 0) error_ = errno;
}

int Output::Finish(int status) {
  Flush();
  if (error_ == 0) return status;
  if (error_ != EPIPE) Tell(std::string("standard output cannot be written: ") + std::strerror(error_));
  return status == kExitDone ? kExitProblem : status;
}

}  // namespace taviguest
