#ifndef HOST_WINDOW_DOCK_FOLDER_H_
#define HOST_WINDOW_DOCK_FOLDER_H_

#include <vector>

#include <QObject>

class QDockWidget;
class QMainWindow;
class QWidget;

namespace tavi {

// Puts docks away while a window is too small to show them beside the guest's screen, whose keys would not be told
// apart otherwise, and brings them back when there is room again. A dock that a person opens in a small window stays.
// The strip below the screen goes the same way.
//
// Main thread.
class DockFolder : public QObject {
  Q_OBJECT

 public:
  // What the guest's screen needs beside docks, in pixels of the window.
  static constexpr int kLeastViewWidth = 680;
  static constexpr int kLeastViewHeight = 384;  // of a screen of 16:9 that is as wide as above

  explicit DockFolder(QMainWindow* window);

  // The dock is the window's.
  void Add(QDockWidget* dock);
  // Shows the strip below the guest's screen while there is room for both; not owned.
  void SetStrip(QWidget* strip);
  // Whether the dock is shown, or would be if there were room.
  bool IsWanted(const QDockWidget* dock) const;
  // Shows a dock, as soon as there is room, or puts it away.
  void SetWanted(QDockWidget* dock, bool wanted);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    QDockWidget* dock;
    bool is_crowded = false;  // the window is too small for it
    bool is_folded = false;   // put away because of that
  };

  bool IsCrowded(const QDockWidget* dock) const;
  void Fold(Entry* entry);
  void FoldStrip();

  QMainWindow* window_;
  QWidget* strip_ = nullptr;
  std::vector<Entry> entries_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_DOCK_FOLDER_H_
