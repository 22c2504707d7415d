#include "host/play/app_keymaps.h"

#include <vector>

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace {

struct AppKeymap {
  QString app;
  QString path;
};

std::vector<AppKeymap> ReadFolder(const QString& folder) {
  std::vector<AppKeymap> keymaps;
  const QStringList kinds{QStringLiteral("*.yaml"), QStringLiteral("*.yml"), QStringLiteral("*.json")};
  for (const QFileInfo& file : QDir(folder).entryInfoList(kinds, QDir::Files, QDir::Name)) {
    const QString package = tavikeymapmanager::ReadKeymapFile(file.filePath()).package;
    if (!package.isEmpty()) keymaps.push_back({package, file.filePath()});
  }
  return keymaps;
}

// A settings key must not contain slashes.
QString KeyOf(const QString& folder) {
  return QStringLiteral("last_app/") + QString::fromLatin1(QUrl::toPercentEncoding(folder));
}

}  // namespace

AppKeymaps::AppKeymaps(const QString& folder, const QString& memory)
    : folder_(QFileInfo(folder).absoluteFilePath()), memory_(memory) {}

QString AppKeymaps::UsualMemory() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/tavi/play.ini");
}

QString AppKeymaps::Find(const QString& app, QString* problem) const {
  for (const AppKeymap& keymap : ReadFolder(folder_)) {
    if (keymap.app == app) return keymap.path;
  }
  const QStringList apps = Apps();
  const QString known = apps.isEmpty()
                            ? QStringLiteral("no keymap there has a package")
                            : QStringLiteral("there are keymaps for %1").arg(apps.join(QStringLiteral(", ")));
  *problem = QStringLiteral("no keymap in %1 has the package %2; %3").arg(folder_, app, known);
  return {};
}

QStringList AppKeymaps::Apps() const {
  QStringList apps;
  for (const AppKeymap& keymap : ReadFolder(folder_)) apps += keymap.app;
  apps.removeDuplicates();
  return apps;
}

QString AppKeymaps::LastApp() const {
  return memory_.isEmpty() ? QString() : QSettings(memory_, QSettings::IniFormat).value(KeyOf(folder_)).toString();
}

QString AppKeymaps::Remember(const QString& app) const {
  if (memory_.isEmpty()) return {};
  QSettings memory(memory_, QSettings::IniFormat);
  memory.setValue(KeyOf(folder_), app.toUtf8());  // as text, each Qt has an encoding of its own
  memory.sync();
  if (memory.status() == QSettings::NoError) return {};
  return QStringLiteral("cannot write %1: %2 is not remembered").arg(memory_, app);
}

}  // namespace tavi
