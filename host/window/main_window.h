#ifndef HOST_WINDOW_MAIN_WINDOW_H_
#define HOST_WINDOW_MAIN_WINDOW_H_

#include <QMainWindow>
#include <QSize>
#include <QString>

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QToolBar;

namespace tavi {

class DiagnosticsPanel;
class GuestFrame;
class GuestPanel;
class GuestView;
class KeymapWatch;
class LineLog;

// The window of `tavi window`: the guest view with the keymap over it, what the guest has down, and the lines it got.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();

  // Puts the keymap at `path` to use and tells what is wrong with it; an empty path is no keymap.
  void LoadKeymap(const QString& path);
  // Asks for a file, and loads it.
  void OpenKeymap();
  // The guest's display in pixels. An empty size: as large as the view, whatever that is.
  void SetGuestSize(const QSize& size);

  GuestView* View() const { return view_; }

 private:
  void MakeToolBar();
  void MakeLogDock();
  QMenu* MakeGuestMenu();
  QWidget* MakeCentre();
  void TakeViewSize();
  void ShowSizes();

  GuestView* view_;
  GuestFrame* frame_;
  GuestPanel* panel_;
  DiagnosticsPanel* diagnostics_;
  LineLog* log_;
  KeymapWatch* watch_;
  QAction* log_shown_ = nullptr;
  QActionGroup* guest_sizes_ = nullptr;
  QLabel* keymap_label_;
  QLabel* size_label_;
  QString keymap_;
  bool guest_follows_view_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MAIN_WINDOW_H_
