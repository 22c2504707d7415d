#include "host/session/keymap_watch.h"

#include <utility>

#include <QFileInfo>

namespace tavi {

namespace {

constexpr int kSettleMs = 120;  // editors write in several steps

}  // namespace

KeymapWatch::KeymapWatch(QObject* parent) : QObject(parent) {
  settling_.setSingleShot(true);
  settling_.setInterval(kSettleMs);
  connect(&settling_, &QTimer::timeout, this, &KeymapWatch::Settle);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this] { settling_.start(); });
  // A file that was replaced is no longer watched; its folder reports the new one.
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!watcher_.files().contains(path_)) settling_.start();
  });
}

void KeymapWatch::Watch(const QString& path) {
  const QStringList before = watcher_.files() + watcher_.directories();
  if (!before.isEmpty()) watcher_.removePaths(before);
  settling_.stop();
  path_ = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
  if (path_.isEmpty()) return;
  watcher_.addPath(QFileInfo(path_).absolutePath());
  is_there_ = QFileInfo::exists(path_);
  if (is_there_) watcher_.addPath(path_);
}

void KeymapWatch::Settle() {
  const bool was_there = std::exchange(is_there_, QFileInfo::exists(path_));
  if (was_there && !is_there_) Q_EMIT Vanished();
  if (!is_there_) return;
  if (!watcher_.files().contains(path_)) watcher_.addPath(path_);
  Q_EMIT Changed();
}

}  // namespace tavi
