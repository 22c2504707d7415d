#ifndef HOST_WINDOW_WINDOW_MEMORY_H_
#define HOST_WINDOW_WINDOW_MEMORY_H_

#include <memory>

#include <QMap>
#include <QSize>
#include <QString>
#include <QVariant>

class QSettings;

namespace tavi {

class MainWindow;

// What a window remembers between sessions, in a file of the user: its size, its docks, the keymap, and the options in
// the format of a command line.
//
// Main thread.
class WindowMemory {
 public:
  // The file of this user.
  static QString UsualFile();
  // The usual size of a window at its first start, or as much as fits on a screen with this much room.
  static QSize FirstSize(const QSize& available);

  // With an empty name nothing is restored or stored.
  explicit WindowMemory(const QString& file);
  ~WindowMemory();
  WindowMemory(const WindowMemory&) = delete;
  WindowMemory& operator=(const WindowMemory&) = delete;

  // Empty if there was none, or if it was deleted.
  QString Keymap() const;
  // Options with their values; files that were deleted are left out.
  QMap<QString, QString> Options() const;
  // Restores the size, the docks and the switches of the last window, as far as the screen has room.
  void Restore(MainWindow* window) const;

  // Stores the window's current state.
  void Save(const MainWindow& window);

 private:
  std::unique_ptr<QSettings> settings_;  // null: nothing is remembered
  QVariant Value(const char* key) const;
};

}  // namespace tavi

#endif  // HOST_WINDOW_WINDOW_MEMORY_H_
