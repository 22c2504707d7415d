#ifndef HOST_SESSION_KEYMAP_WATCH_H_
#define HOST_SESSION_KEYMAP_WATCH_H_

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace tavi {

// Signals that a file was saved, also by editors that replace it by a new file.
class KeymapWatch : public QObject {
  Q_OBJECT

 public:
  explicit KeymapWatch(QObject* parent = nullptr);

  // Watches one file at a time; an empty path ends the watch.
  void Watch(const QString& path);
  // Whether the file existed at the last check.
  bool IsThere() const { return is_there_; }

 Q_SIGNALS:
  // A moment after the last of several changes.
  void Changed();
  // The same if the file no longer exists.
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
