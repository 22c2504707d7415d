#include <windows.h>
#include <algorithm>
#include <iterator>
#include <process.h>
#include <tlhelp32.h>
#include <winternl.h>

#include <QtGlobal>

#include "tests/support/count_threads.h"

namespace taviinputmanager {

namespace {

HMODULE ModuleOf(const void* address) {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     static_cast<const wchar_t*>(address), &module);
  return module;
}

// Null if the thread has ended.
const void* StartOf(DWORD thread) {
  constexpr auto kStartAddress = static_cast<THREADINFOCLASS>(9);  // ThreadQuerySetWin32StartAddress
  const HANDLE opened = OpenThread(THREAD_QUERY_INFORMATION, FALSE, thread);
  if (!opened) return nullptr;
  const void* start = nullptr;
  NtQueryInformationThread(opened, kStartAddress, &start, sizeof start, nullptr);
  CloseHandle(opened);
  return start;
}

// Threads of the program start in Qt or in the C runtime. There are helpers besides, which come and go: the system has
// one for exact timers, and googletest has one for each thread in which an assertion failed or a scope was traced.
bool IsOfTheProgram(DWORD thread) {
  static const HMODULE starters[] = {ModuleOf(reinterpret_cast<const void*>(&qVersion)),
                                     ModuleOf(reinterpret_cast<const void*>(&_beginthreadex))};
  const void* start = StartOf(thread);
  return start && std::count(std::begin(starters), std::end(starters), ModuleOf(start)) != 0;
}

}  // namespace

int CountThreads() {
  const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 thread{};
  thread.dwSize = sizeof thread;
  int count = 1;  // the main thread
  for (BOOL has_one = Thread32First(all, &thread); has_one; has_one = Thread32Next(all, &thread)) {
    count += thread.th32OwnerProcessID == GetCurrentProcessId() && IsOfTheProgram(thread.th32ThreadID);
  }
  CloseHandle(all);
  return count;
}

}  // namespace taviinputmanager
