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

// What a window remembers from one start to the next, in a file of the user's: its size, its docks, the keymap, and the
// options that it was used with, as a command line writes them.
//
// Main thread.
class WindowMemory {
 public:
  // The file of this user.
  static QString UsualFile();
  // As large as a window usually is at its first start, or as a screen with this much room allows.
  static QSize FirstSize(const QSize& available);

  // An empty name: nothing is remembered, and nothing is kept.
  explicit WindowMemory(const QString& file);
  ~WindowMemory();
  WindowMemory(const WindowMemory&) = delete;
  WindowMemory& operator=(const WindowMemory&) = delete;

  // Empty when there was none, or when it is gone.
  QString Keymap() const;
  // Options with their values; files that are gone are left out.
  QMap<QString, QString> Options() const;
  // Gives a window the size, the docks and the switches that the last one had, as far as the screen has room.
  void Restore(MainWindow* window) const;

  // Writes down how the window is left.
  void Save(const MainWindow& window);

 private:
  std::unique_ptr<QSettings> settings_;  // null: nothing is remembered
  QVariant Value(const char* key) const;
};

}  // namespace tavi

#endif  // HOST_WINDOW_WINDOW_MEMORY_H_
