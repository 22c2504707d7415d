#include "host/play/device_folder.h"

#include <algorithm>
#include <utility>

#include <QDir>

#include "host/play/evdev_device.h"
#include "qt/numbers.h"

namespace tavi {

namespace {

const QString kPrefix = QStringLiteral("event");

int NumberOf(const QString& name) { return qt::ToInt(QStringView(name).mid(kPrefix.size())); }

}  // namespace

QStringList DeviceFolder::Paths() const {
  const QDir folder(folder_);
  QStringList names = folder.entryList({kPrefix + QLatin1Char('*')}, QDir::System | QDir::Files);
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) { return NumberOf(a) < NumberOf(b); });
  QStringList paths;
  for (const QString& name : std::as_const(names)) paths += folder.filePath(name);
  return paths;
}

std::unique_ptr<PhysicalDevice> DeviceFolder::Open(const QString& path, QString* problem) {
  return EvdevDevice::Open(path, problem);
}

void DeviceFolder::Watch(std::function<void()> changed) {
  watcher_.addPath(folder_);
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_,
                   [changed = std::move(changed)] { changed(); });
}

}  // namespace tavi
