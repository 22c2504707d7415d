#ifndef HOST_WINDOW_MAIN_WINDOW_H_
#define HOST_WINDOW_MAIN_WINDOW_H_

#include <memory>

#include <QMainWindow>
#include <QSize>
#include <QString>

#include "host/window/background_picture.h"
#include "host/window/gamepads.h"
#include "host/window/key_combination.h"
#include "host/window/keymap_source.h"
#include "host/window/mapping.h"
#include "host/window/overlay_marks.h"
#include "host/window/placed_finding.h"
#include "host/window/reserved_keys.h"
#include "host/window/window_state.h"

class QAction;
class QDockWidget;
class QLabel;
class QToolBar;

namespace tavi {

class DiagnosticsPanel;
class FindingMarks;
class GamepadPoll;
class GuestFrame;
class GuestMenu;
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
  // What it is turned by: 0, 90, 180 or 270 degrees. The size is of the screen before it is turned.
  void SetRotation(int degrees);
  // How many pixels the host counts for one of the guest, for whoever wants to see which places agree all the same.
  void SetPixelRatio(double ratio);
  // A picture in place of the guest's screen; an empty name for none. Returns what is wrong, or nothing.
  QString SetBackground(const QString& file);
  void OpenBackground();

  // The keys that let go of everything, and that pause the mapping and let it go on. Few keyboards lack the ones that
  // are taken by themselves, and hardly a game uses them.
  static constexpr char kPanicKey[] = "Ctrl+Alt+Backspace";
  static constexpr char kPauseKey[] = "F12";
  void SetPanicKey(const KeyCombination& key);
  void SetPauseKey(const KeyCombination& key);

  void PauseMapping();
  // Empties the list of the lines for the guest.
  void ClearLog();

  // Listens to another instance's lines under this name. Returns what is wrong, or nothing.
  QString ListenAs(const QString& name);
  // Carries what the guest gets to the instances of these names.
  void MirrorTo(const QStringList& names);

  GuestView* View() const { return view_; }
  RecordBar* Records() const { return records_; }
  // Lists the events of the host.
  QAction* EventsShown() const { return events_shown_; }
  KeymapEditor* Editor() const { return editor_; }
  // The gamepads that the library is told of.
  Gamepads* Pads() { return &pads_; }
  // The keymaps in use.
  Mapping* Keymaps() { return &mapping_; }

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  // A keymap that is in use, and what belongs to it.
  struct Keymap {
    QString path;      // empty: none
    QString contents;  // for people
    QVector<OverlayMark> marks;
    QVector<PlacedFinding> findings;  // that have a place on the screen
    DiagnosticsPanel* diagnostics;
    KeymapWatch* watch;
  };

  void MakeToolBar();
  void MakeLogDock();
  void MakeEventDock();
  void MakeEditor();
  void MakeRecordBar();
  void MakeReplayDock();
  void ShowSecondView(bool shown);
  void Tell(const QString& text, bool is_problem);
  GuestMenu* MakeGuestMenu();
  QWidget* MakeCentre();
  // Takes in a keymap that was read.
  void Take(const KeymapSource& source, Keymap* keymap);
  void ShowEdited();
  void UseEdited(const QString& file);
  QString AskForKeymap(const QString& title, const Keymap& before);
  void ShowKeymaps();
  void TakeActivation();
  void ShowPads();
  void ShowState();
  void ShowMirrors();
  void TakeViewSize();
  void ShapeGuest();
  void ShowSizes();
  void TellShapeOfBackground();

  GuestView* view_;
  GuestFrame* frame_;
  GuestPanel* panel_;
  KeymapEditor* editor_ = nullptr;
  KeymapSource edited_;  // the keymap as the editor has it
  Keymap keymap_;
  Keymap joystick_keymap_;
  LineLog* log_;
  QAction* log_shown_ = nullptr;
  QAction* events_shown_ = nullptr;
  QAction* mapping_on_ = nullptr;
  QAction* let_go_ = nullptr;
  GuestMenu* guest_menu_ = nullptr;
  BackgroundPicture background_;
  QLabel* keymap_label_;
  QLabel* state_label_;
  QLabel* mirror_label_;
  QLabel* pad_label_;
  QLabel* size_label_;
  FindingMarks* finding_marks_ = nullptr;
  RecordBar* records_ = nullptr;
  QDockWidget* replay_dock_ = nullptr;
  GuestFrame* replay_frame_ = nullptr;
  std::unique_ptr<MirrorServer> mirror_;
  QString listens_as_;  // empty: to nobody
  int mirror_sources_ = 0;
  bool guest_follows_view_ = false;
  Gamepads pads_;
  Mapping mapping_;
  ReservedKeys reserved_keys_;
  WindowState state_;
  std::unique_ptr<GamepadPoll> pad_poll_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MAIN_WINDOW_H_
