#include <windows.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <mutex>

#include "host/system/interruption.h"
#include "host/system/terminal.h"

namespace tavi {

namespace {

UINT encoding_before = 0;  // the console's code page, restored at the end: the console outlives this program

void RestoreEncoding() {
  if (encoding_before != 0) SetConsoleOutputCP(encoding_before);
}

// As the corresponding POSIX signals.
int SignalOf(DWORD kind) { return kind == CTRL_C_EVENT || kind == CTRL_BREAK_EVENT ? SIGINT : SIGTERM; }

// With the status that the system uses, by which a batch file asks whether to go on. As after a signal, nothing else
// runs: another thread may be in the middle of anything.
void EndByEvent(int /*number*/) {
  RestoreEncoding();
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_CONTROL_C_EXIT));
}

// After any event but these two the system ends the program as soon as its handler returns; the program may end
// earlier.
void WaitForTheEnd(DWORD kind) {
  if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT) Sleep(INFINITE);
}

// Runs on a thread that the system starts.
BOOL WINAPI TakeEvent(DWORD kind) {
  React(SignalOf(kind), EndByEvent);
  WaitForTheEnd(kind);
  return TRUE;
}

}  // namespace

void ListenForInterruptions() {
  static std::once_flag listens;
  std::call_once(listens, [] { SetConsoleCtrlHandler(TakeEvent, TRUE); });
}

void EndWithReader() {}  // Windows has no such signal: the write fails

void GoOnWithoutReader() {}

bool IsErrorTerminal() { return _isatty(_fileno(stderr)) != 0; }

// Binary mode: line ends are not translated, and Ctrl+Z does not end the input.
void MakeStreamsPlain() {
  for (FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  encoding_before = GetConsoleOutputCP();
  ListenForInterruptions();
  if (encoding_before == 0 || !SetConsoleOutputCP(CP_UTF8)) return;  // no console
  std::atexit(RestoreEncoding);
}

}  // namespace tavi
