#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include "host/mirror/mirror_address.h"
#include "host/mirror/peer_posix.h"

namespace tavi {

namespace {

constexpr mode_t kMineAlone = 0700;
constexpr mode_t kOthers = 0077;

// False if the name belongs to another user or is not a folder.
bool MakeMine(const QByteArray& folder) {
  if (mkdir(folder.constData(), kMineAlone) != 0 && errno != EEXIST) return false;
  struct stat status {};
  if (lstat(folder.constData(), &status) != 0 || !S_ISDIR(status.st_mode) || status.st_uid != geteuid()) return false;
  return (status.st_mode & kOthers) == 0 || chmod(folder.constData(), kMineAlone) == 0;
}

}  // namespace

QString MirrorAddressOf(const QString& name) {
  const QString place = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (place.isEmpty()) return {};
  const QString folder = place + QStringLiteral("/tavi");
  return MakeMine(QFile::encodeName(folder)) ? folder + QLatin1Char('/') + name : QString();
}

bool IsOfThisUser(const QLocalSocket& socket) { return IsPeerOfThisUser(static_cast<int>(socket.socketDescriptor())); }

bool IsPeerOfThisUser(int file) {
  struct ucred peer {};
  socklen_t size = sizeof(peer);
  return getsockopt(file, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

}  // namespace tavi
