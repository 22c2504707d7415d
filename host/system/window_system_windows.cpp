#include "host/system/window_system.h"

namespace tavi {

bool HasWindowSystem(const QStringList& /*arguments*/) { return true; }

}  // namespace tavi
