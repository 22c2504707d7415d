#include "handlers/keymap_origin.h"

namespace taviinputmanager {

// Nobody can stand in front, but the library may be another's.
bool IsKeyCreationOwn() { return false; }

bool IsKeyMatchOwn() { return false; }

}  // namespace taviinputmanager
