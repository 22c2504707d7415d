#include <dlfcn.h>

#include "handlers/key_match_origin.h"
#include "keymap/keymap_functions.h"

namespace taviinputmanager {

// Our keymap library exports its function under a second name, which nothing overrides and no other library has. It is
// looked up, so that it may be missing.
bool IsKeyMatchOwn() {
  const void* const own = dlsym(RTLD_DEFAULT, "tavi_isConfigKeyMatch");
  return own == reinterpret_cast<const void*>(&tavikeymapmanager::isConfigKeyMatch);
}

}  // namespace taviinputmanager
