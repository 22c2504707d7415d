#include <QLocalSocket>

#include "host/mirror/mirror_address.h"

namespace tavi {

// Pipes have names and no files.
QString MirrorAddressOf(const QString& name) {
  return QStringLiteral("tavi-%1-%2").arg(qEnvironmentVariable("USERNAME"), name);
}

// A pipe lets its owner in and nobody else.
bool IsOfThisUser(const QLocalSocket& /*socket*/) { return true; }

}  // namespace tavi
