#include <windows.h>

namespace taviinputmanager {
namespace {

// Once loaded, the library stays in the process: timers, threads and objects destroyed at exit run its code. On other
// systems a linker option does this.
bool StayLoaded() {
  static const char here = 0;
  HMODULE library = nullptr;
  const DWORD how = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
  return GetModuleHandleExA(how, &here, &library) != FALSE;
}

const bool stays = StayLoaded();

}  // namespace
}  // namespace taviinputmanager
