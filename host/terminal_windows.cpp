#include <cstdio>
#include <io.h>
#include <mutex>
#include <utility>
#include <windows.h>

#include "host/terminal.h"

namespace tavi {

namespace {

std::mutex clean_up_mutex;
std::function<void()> clean_up_function;

// On a thread that the system starts. Passing it on ends the program.
BOOL WINAPI TakeInterrupt(DWORD /*kind*/) {
  const std::lock_guard<std::mutex> lock(clean_up_mutex);
  if (clean_up_function) clean_up_function();
  return FALSE;
}

}  // namespace

void EndWithReader() {}  // there is no such signal: a write fails

bool IsErrorTerminal() { return _isatty(_fileno(stderr)) != 0; }

void SetCleanUp(std::function<void()> clean_up) {
  static std::once_flag once;
  std::call_once(once, [] { SetConsoleCtrlHandler(TakeInterrupt, TRUE); });
  const std::lock_guard<std::mutex> lock(clean_up_mutex);
  clean_up_function = std::move(clean_up);
}

}  // namespace tavi
