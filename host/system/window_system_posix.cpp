#include <QtGlobal>

#include "host/system/window_system.h"

namespace tavi {

bool HasWindowSystem(const QStringList& arguments) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    if (!qEnvironmentVariableIsEmpty(variable)) return true;
  }
  return arguments.contains(QLatin1String("-platform"));
}

void NameFontFolder() {}

}  // namespace tavi
