#include "host/window_system.h"

#include <QtGlobal>

namespace tavi {

namespace {

QtMessageHandler next_handler = nullptr;

void DropSessionWarning(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))) return;
  next_handler(type, context, message);
}

}  // namespace

void DoWithoutWindowSystem() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  next_handler = qInstallMessageHandler(DropSessionWarning);
}

}  // namespace tavi
