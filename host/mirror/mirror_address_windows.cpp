#include <QLocalSocket>

#include "host/mirror/mirror_address.h"

namespace tavi {

// Pipes have names but no files.
QString MirrorAddressOf(const QString& name) {
  return QStringLiteral("tavi-%1-%2").arg(qEnvironmentVariable("USERNAME"), name);
}

// A pipe admits its owner and nobody else.
bool IsOfThisUser(const QLocalSocket& /*socket*/) { return true; }

}  // namespace tavi
