#ifndef HOST_SESSION_KEYMAP_WATCH_H_
#define HOST_SESSION_KEYMAP_WATCH_H_

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
  // Whether there was such a file when it was last looked for.
  bool IsThere() const { return is_there_; }

 Q_SIGNALS:
  // A moment after the last of several changes.
  void Changed();
  // The same when there is no such file any more.
  void Vanished();

 private:
  Q_INVOKABLE void Settle();

  QFileSystemWatcher watcher_;
  QTimer settling_;
  QString path_;
  bool is_there_ = false;
};

}  // namespace tavi

#endif  // HOST_SESSION_KEYMAP_WATCH_H_
