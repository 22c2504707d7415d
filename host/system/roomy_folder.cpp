#include "host/system/roomy_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QStringList>

namespace tavi {

namespace {

constexpr qint64 kPlentyBytes = qint64{256} << 20;

// The most permanent one first: on many systems the last one is in memory.
QStringList Candidates() {
  QStringList folders;
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  if (!data.isEmpty()) folders += data + QStringLiteral("/tavi");
  folders += QDir::tempPath();
  folders += QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  folders.removeAll(QString());
  return folders;
}

// If the space is unknown, as in a chroot whose root is not a mount, the folder is taken to have plenty.
qint64 RoomIn(const QString& folder) {
  const bool is_usable = QDir().mkpath(folder) && QFileInfo(folder).isWritable();
  if (!is_usable) return 0;
  const QStorageInfo disk(folder);
  return disk.isValid() ? disk.bytesAvailable() : kPlentyBytes;
}

}  // namespace

QString RoomyFolder() {
  QString best;
  qint64 most = 0;
  for (const QString& folder : Candidates()) {
    const qint64 room = RoomIn(folder);
    if (room >= kPlentyBytes) return folder;
    if (room > most) {
      most = room;
      best = folder;
    }
  }
  return best;
}

}  // namespace tavi
