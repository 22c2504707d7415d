#include "handlers/keymap_origin.h"

namespace taviinputmanager {

// No host function can override them, but another library may replace ours.
bool IsKeyCreationOwn() { return false; }

bool IsKeyMatchOwn() { return false; }

}  // namespace taviinputmanager
