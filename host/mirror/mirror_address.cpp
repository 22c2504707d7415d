#include "host/mirror/mirror_address.h"

#include <QRegularExpression>

namespace tavi {

QString MirrorNameProblem(const QString& name) {
  static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9_-]{1,64}\\z"));
  if (form.match(name).hasMatch()) return {};
  return QStringLiteral("a name has up to 64 letters, digits, - and _, unlike \"%1\"").arg(name);
}

}  // namespace tavi
