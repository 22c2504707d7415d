#include <windows.h>
#include <tlhelp32.h>

#include "tests/support/count_threads.h"

namespace taviinputmanager {

int CountThreads() {
  const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 thread{};
  thread.dwSize = sizeof thread;
  int count = 0;
  for (BOOL has_one = Thread32First(all, &thread); has_one; has_one = Thread32Next(all, &thread)) {
    count += thread.th32OwnerProcessID == GetCurrentProcessId();
  }
  CloseHandle(all);
  return count;
}

}  // namespace taviinputmanager
