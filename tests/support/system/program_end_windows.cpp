#include <windows.h>
#include <csignal>

#include "tests/support/system/program_end.h"

namespace tavi {

namespace {

// Where the system starts a thread in a program that gets an event; at the same address in each program.
LPTHREAD_START_ROUTINE EventRoutine() {
  const FARPROC routine = GetProcAddress(GetModuleHandleW(L"kernelbase.dll"), "CtrlRoutine");
  return reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(routine));
}

BOOL WINAPI GoOn(DWORD /*kind*/) { return TRUE; }

// All programs of a console get it, also this one, which shares the program's console from now on.
void PressCtrlC(DWORD program) {
  SetConsoleCtrlHandler(GoOn, TRUE);
  FreeConsole();
  if (AttachConsole(program)) GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
}

// As the system does it. Wine itself sends no event but Ctrl+C.
void StartEventRoutine(DWORD program, DWORD event) {
  const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, program);
  const HANDLE thread =
      CreateRemoteThread(process, nullptr, 0, EventRoutine(), reinterpret_cast<void*>(UINT_PTR{event}), 0, nullptr);
  CloseHandle(thread);
  CloseHandle(process);
}

}  // namespace

std::vector<ProgramEnd> ProgramEnds() {
  return {{"Ctrl+C", CTRL_C_EVENT, SIGINT},
          {"Ctrl+Break", CTRL_BREAK_EVENT, SIGINT},
          {"a closed console", CTRL_CLOSE_EVENT, SIGTERM}};
}

void MakeEndable(QProcess* program) {
  program->setCreateProcessArgumentsModifier(
      [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= CREATE_NO_WINDOW; });
}

void SendEnd(const QProcess& program, const ProgramEnd& end) {
  const auto id = static_cast<DWORD>(program.processId());
  if (end.event == CTRL_C_EVENT) {
    PressCtrlC(id);
  } else {
    StartEventRoutine(id, end.event);
  }
}

void SendEndToThisProgram(const ProgramEnd& end) { StartEventRoutine(GetCurrentProcessId(), end.event); }

bool IsStatusOf(int status, const ProgramEnd& /*end*/) { return static_cast<DWORD>(status) == STATUS_CONTROL_C_EXIT; }

}  // namespace tavi
