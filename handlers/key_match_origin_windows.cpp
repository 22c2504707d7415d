#include "handlers/key_match_origin.h"

namespace taviinputmanager {

// Nothing can override it, but the library may be another one.
bool IsKeyMatchOwn() { return false; }

}  // namespace taviinputmanager
