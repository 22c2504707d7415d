#include <dlfcn.h>

#include "handlers/key_match_origin.h"
#include "keymap/keymap_functions.h"

namespace taviinputmanager {

// Our keymap library has a second name for its function, which nobody stands in front of; no other library has it. It
// is looked up, so that it need not be there.
bool IsKeyMatchOwn() {
  const void* const own = dlsym(RTLD_DEFAULT, "tavi_isConfigKeyMatch");
  return own == reinterpret_cast<const void*>(&tavikeymapmanager::isConfigKeyMatch);
}

}  // namespace taviinputmanager
