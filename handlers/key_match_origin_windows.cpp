#include "handlers/key_match_origin.h"

namespace taviinputmanager {

// Nobody can stand in front, but the library may be another's.
bool IsKeyMatchOwn() { return false; }

}  // namespace taviinputmanager
