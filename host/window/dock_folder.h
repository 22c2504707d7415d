#ifndef HOST_WINDOW_DOCK_FOLDER_H_
#define HOST_WINDOW_DOCK_FOLDER_H_

#include <vector>

#include <QObject>

class QDockWidget;
class QMainWindow;
class QWidget;

namespace tavi {

// Hides docks while a window is too small to show them beside a guest's screen whose keys can be told apart, and shows
// them again when there is room. A dock that the user opens in a small window stays. The strip below the screen is
// handled in the same way.
//
// Main thread.
class DockFolder : public QObject {
  Q_OBJECT

 public:
  // The size that the guest's screen needs beside docks, in pixels of the window.
  static constexpr int kLeastViewWidth = 680;
  static constexpr int kLeastViewHeight = 384;  // for a 16:9 screen of the width above

  explicit DockFolder(QMainWindow* window);

  // The window owns the dock.
  void Add(QDockWidget* dock);
  // Shows the strip below the guest's screen while there is room for both. Not owned.
  void SetStrip(QWidget* strip);
  // Whether the dock is shown, or would be if there was room.
  bool IsWanted(const QDockWidget* dock) const;
  // Shows a dock as soon as there is room, or hides it.
  void SetWanted(QDockWidget* dock, bool wanted);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    QDockWidget* dock = nullptr;
    bool is_crowded = false;  // the window is too small for it
    bool is_folded = false;   // hidden because of that
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
