#include <dlfcn.h>

#include "handlers/keymap_origin.h"
#include "keymap/keymap_functions.h"

namespace taviinputmanager {
namespace {

// Our keymap library exports each function under a second name, which nothing overrides and no other library has. The
// name is looked up at run time, because another keymap library does not have it.
template <typename Function>
bool IsOwn(Function* called, const char* second_name) {
  return dlsym(RTLD_DEFAULT, second_name) == reinterpret_cast<const void*>(called);
}

}  // namespace

bool IsKeyCreationOwn() { return IsOwn(&tavikeymapmanager::CreateConfigKey, "tavi_CreateConfigKey"); }

bool IsKeyMatchOwn() { return IsOwn(&tavikeymapmanager::isConfigKeyMatch, "tavi_isConfigKeyMatch"); }

}  // namespace taviinputmanager
