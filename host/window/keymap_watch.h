#ifndef HOST_WINDOW_KEYMAP_WATCH_H_
#define HOST_WINDOW_KEYMAP_WATCH_H_

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace tavi {

// Tells when a file has been saved, also by editors that put a new file in its place.
class KeymapWatch : public QObject {
  Q_OBJECT

 public:
  explicit KeymapWatch(QObject* parent = nullptr);

  // One file at a time; an empty path ends the watch.
  void Watch(const QString& path);

 Q_SIGNALS:
  // A moment after the last of several changes. Not emitted while there is no such file.
  void Changed();

 private:
  void Settle();

  QFileSystemWatcher watcher_;
  QTimer settling_;
  QString path_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_KEYMAP_WATCH_H_
