#include <windows.h>

namespace taviinputmanager {
namespace {

// The library stays in the process once it is loaded: timers, threads and objects that are destroyed at exit run its
// code. Elsewhere the linker is told so.
bool StayLoaded() {
  static const char here = 0;
  HMODULE library = nullptr;
  const DWORD how = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
  return GetModuleHandleExA(how, &here, &library) != FALSE;
}

const bool stays = StayLoaded();

}  // namespace
}  // namespace taviinputmanager
