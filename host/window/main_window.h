#ifndef HOST_WINDOW_MAIN_WINDOW_H_
#define HOST_WINDOW_MAIN_WINDOW_H_

#include <memory>

#include <QMainWindow>
#include <QSize>
#include <QString>

#include "host/window/gamepads.h"
#include "host/window/overlay_marks.h"

class QAction;
class QActionGroup;
class QDockWidget;
class QLabel;
class QMenu;
class QToolBar;

namespace tavikeymapmanager {
struct LoadResult;
}

namespace tavi {

class DiagnosticsPanel;
class GamepadPoll;
class GuestFrame;
class GuestPanel;
class GuestView;
class KeymapEditor;
class KeymapWatch;
class LineLog;
class MirrorServer;
class RecordBar;

// The window of `tavi window`: the guest view with the keymap over it, what the guest has down, and the lines it got.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  // Puts the keymap at `path` to use and tells what is wrong with it; an empty path is no keymap.
  void LoadKeymap(const QString& path);
  // The same of the keymap of gamepads. Without one, gamepads reach the guest as they are.
  void LoadJoystickKeymap(const QString& path);
  // Each asks for a file, and loads it.
  void OpenKeymap();
  void OpenJoystickKeymap();
  // From now on the gamepads of this computer are the guest's while the window is in use.
  void ReadGamepads();
  // The guest's display in pixels. An empty size: as large as the view, whatever that is.
  void SetGuestSize(const QSize& size);

  // Listens to another instance's lines under this name. Returns what is wrong, or nothing.
  QString ListenAs(const QString& name);
  // Carries what the guest gets to the instances of these names.
  void MirrorTo(const QStringList& names);

  GuestView* View() const { return view_; }
  RecordBar* Records() const { return records_; }
  KeymapEditor* Editor() const { return editor_; }
  // The gamepads that the library is told of.
  Gamepads* Pads() { return &pads_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  // A keymap that is in use, and what belongs to it.
  struct Keymap {
    QString path;      // empty: none
    QString contents;  // for people
    QVector<OverlayMark> marks;
    DiagnosticsPanel* diagnostics;
    KeymapWatch* watch;
  };

  void MakeToolBar();
  void MakeLogDock();
  void MakeEditor();
  void MakeRecordBar();
  void MakeReplayDock();
  void ShowSecondView(bool shown);
  void Tell(const QString& text, bool is_problem);
  QMenu* MakeGuestMenu();
  QWidget* MakeCentre();
  // Takes a keymap file in, and gives its own name.
  QString Read(const QString& path, Keymap* keymap);
  void Take(const tavikeymapmanager::LoadResult& result, const QString& path, Keymap* keymap);
  void ShowEdited();
  void UseEdited(const QString& file);
  QString AskForKeymap(const QString& title, const Keymap& before);
  void ShowKeymaps();
  void TakeActivation();
  void ShowPads();
  void TakeViewSize();
  void ShowSizes();

  GuestView* view_;
  GuestFrame* frame_;
  GuestPanel* panel_;
  KeymapEditor* editor_ = nullptr;
  Keymap keymap_;
  Keymap joystick_keymap_;
  LineLog* log_;
  QAction* log_shown_ = nullptr;
  QActionGroup* guest_sizes_ = nullptr;
  QLabel* keymap_label_;
  QLabel* pad_label_;
  QLabel* size_label_;
  RecordBar* records_ = nullptr;
  QDockWidget* replay_dock_ = nullptr;
  GuestFrame* replay_frame_ = nullptr;
  std::unique_ptr<MirrorServer> mirror_;
  bool guest_follows_view_ = false;
  Gamepads pads_;
  std::unique_ptr<GamepadPoll> pad_poll_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MAIN_WINDOW_H_
