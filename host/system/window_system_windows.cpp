#include <QByteArray>

#include "host/system/window_system.h"

namespace tavi {

bool HasWindowSystem(const QStringList& /*arguments*/) { return true; }

void NameFontFolder() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_FONTDIR")) qputenv("QT_QPA_FONTDIR", qgetenv("WINDIR") + "/Fonts");
}

}  // namespace tavi
