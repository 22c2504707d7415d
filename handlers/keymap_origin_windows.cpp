#include "handlers/keymap_origin.h"

namespace taviinputmanager {

// Nothing can override them, but the library may be another one.
bool IsKeyCreationOwn() { return false; }

bool IsKeyMatchOwn() { return false; }

}  // namespace taviinputmanager
