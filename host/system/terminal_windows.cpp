#include <windows.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <mutex>
#include <utility>

#include "host/system/terminal.h"

namespace tavi {

namespace {

std::once_flag listens;  // for the console's events
std::mutex reactions_mutex;
std::function<void()> clean_up_reaction;
std::function<void(int)> take_reaction;

// As the corresponding POSIX signals.
int SignalOf(DWORD kind) { return kind == CTRL_C_EVENT || kind == CTRL_BREAK_EVENT ? SIGINT : SIGTERM; }

// After any event but Ctrl+C the system ends the program as soon as this returns; the handler may end it earlier.
void WaitForTheEnd(DWORD kind) {
  if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT) Sleep(INFINITE);
}

// Runs on a thread that the system starts. Returning FALSE ends the program.
BOOL WINAPI TakeInterrupt(DWORD kind) {
  {
    const std::lock_guard<std::mutex> lock(reactions_mutex);
    if (!take_reaction) {
      if (clean_up_reaction) clean_up_reaction();
      return FALSE;
    }
    take_reaction(SignalOf(kind));
  }
  WaitForTheEnd(kind);
  return TRUE;
}

UINT encoding_before = 0;  // the console's code page, restored at exit: the console outlives this program

void RestoreEncoding() { SetConsoleOutputCP(encoding_before); }

template <typename Reaction>
void SetReaction(Reaction* which, Reaction reaction) {
  std::call_once(listens, [] { SetConsoleCtrlHandler(TakeInterrupt, TRUE); });
  const std::lock_guard<std::mutex> lock(reactions_mutex);
  *which = std::move(reaction);
}

}  // namespace

void EndWithReader() {}  // Windows has no such signal: the write fails

void GoOnWithoutReader() {}

bool IsErrorTerminal() { return _isatty(_fileno(stderr)) != 0; }

void SetCleanUp(std::function<void()> clean_up) { SetReaction(&clean_up_reaction, std::move(clean_up)); }

void SetInterruptionTaker(std::function<void(int)> take) { SetReaction(&take_reaction, std::move(take)); }

// Binary mode: line ends are not translated, and Ctrl+Z does not end the input.
void MakeStreamsPlain() {
  for (FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  encoding_before = GetConsoleOutputCP();
  if (encoding_before == 0 || !SetConsoleOutputCP(CP_UTF8)) return;  // no console
  std::atexit(RestoreEncoding);
}

}  // namespace tavi
