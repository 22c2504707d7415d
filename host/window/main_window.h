#ifndef HOST_WINDOW_MAIN_WINDOW_H_
#define HOST_WINDOW_MAIN_WINDOW_H_

#include <memory>

#include <QMainWindow>
#include <QString>
#include <QStringList>

#include "host/gamepad/gamepads.h"
#include "host/session/key_combination.h"
#include "host/session/keymap_source.h"
#include "host/session/mapping.h"
#include "host/session/reserved_keys.h"
#include "host/window/list_docks.h"
#include "host/window/shown_keymap.h"
#include "host/window/view/window_state.h"

class QAction;
class QDockWidget;

namespace tavi {

class ControlFocus;
class DockFolder;
class FindingMarks;
class GamepadPoll;
class GuestDisplay;
class GuestFrame;
class GuestPanel;
class GuestView;
class KeymapEditor;
class MainToolBar;
class MirrorLabel;
class RecordBar;
class ReplayDock;
class StatusLine;
class TargetButton;

// The window of `tavi window`: the guest view with the overlay, what is down in the guest, and the lines.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  // Loads the keymap at `path` and shows its diagnostics; an empty path is no keymap.
  void LoadKeymap(const QString& path);
  // The same for the gamepad keymap. Without one, gamepads pass through to the guest.
  void LoadJoystickKeymap(const QString& path);
  // Each asks for a file and loads it.
  void OpenKeymap();
  void OpenJoystickKeymap();
  // From now on this computer's gamepads control the guest while the window is active.
  void ReadGamepads();
  // Sets the keys that release everything, that pause and resume the mapping, and that focus the controls. Most
  // keyboards have the default ones, and hardly any game uses them.
  static constexpr char kPanicKey[] = "Ctrl+Alt+Backspace";
  static constexpr char kPauseKey[] = "F12";
  static constexpr char kControlsKey[] = "Ctrl+Alt+Enter";
  void SetPanicKey(const KeyCombination& key);
  void SetPauseKey(const KeyCombination& key);
  void SetControlsKey(const KeyCombination& key);

  void PauseMapping();
  // Releases what is down, and saves a recording and edits, elsewhere if necessary. Returns messages for the user, such
  // as where these are.
  QStringList LeaveWithoutAsking();
  // Shows a message in the status bar for a while; `is_problem`: an error.
  void Tell(const QString& text, bool is_problem);
  // Clears the list of the lines for the guest.
  void ClearLog();

  GuestView* View() const { return view_; }
  GuestDisplay* Display() const { return display_; }
  MirrorLabel* Mirrors() const { return mirrors_; }
  // The guests that get the lines.
  TargetButton* Targets() const { return targets_; }
  RecordBar* Records() const { return records_; }
  // Lists the events of the host.
  QAction* EventsShown() const { return lists_->EventsShown(); }
  void ShowEvents();
  KeymapEditor* Editor() const { return editor_; }
  // The gamepads that the library knows.
  Gamepads* Pads() { return &pads_; }
  // The keymaps in use.
  Mapping* Keymaps() { return &mapping_; }
  MainToolBar* Tools() const { return tools_; }
  // Hides docks while the window is small.
  DockFolder* Docks() const { return lists_->Folder(); }
  // The docks that the user shows and hides; their visibility is remembered.
  QVector<QDockWidget*> RememberedDocks() const { return {lists_->LogDock(), lists_->EventDock()}; }
  QString JoystickKeymapPath() const { return joystick_keymap_.Path(); }
  QString PauseKeyName() const;
  QString PanicKeyName() const;
  QString ControlsKeyName() const;
  // Shows only the parts that are in use, after the layout of another window was restored.
  void ShowPartsInUse();

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeToolBar();
  void MakeDisplay();
  void MakeFullScreen();
  void MakeEditor();
  void MakeRecordBar();
  void MakeReplayDock();
  QWidget* MakeCentre();
  void ShowEdited();
  void ShowTitle();
  void SetEditing(bool editing);
  void UseEdited(const QString& file);
  void TellVanished(const ShownKeymap& keymap);
  QString AskForKeymap(const QString& title, const ShownKeymap& before);
  QString Hint() const;
  void ShowKeymaps();
  void TakeActivation();
  void ShowPads();
  void ShowState();

  GuestView* view_;
  GuestFrame* frame_;
  GuestPanel* panel_;
  QAction* full_screen_;
  KeymapEditor* editor_ = nullptr;
  KeymapSource edited_;  // the editor's version of the keymap
  QString name_;         // of the keymap, for display
  ShownKeymap keymap_;
  ShownKeymap joystick_keymap_;
  ListDocks* lists_ = nullptr;
  ControlFocus* controls_;
  MainToolBar* tools_ = nullptr;
  GuestDisplay* display_ = nullptr;
  StatusLine* status_ = nullptr;
  MirrorLabel* mirrors_;
  TargetButton* targets_;
  FindingMarks* finding_marks_ = nullptr;
  RecordBar* records_ = nullptr;
  ReplayDock* replay_dock_ = nullptr;
  Gamepads pads_;
  Mapping mapping_;
  ReservedKeys reserved_keys_;
  WindowState state_;
  std::unique_ptr<GamepadPoll> pad_poll_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MAIN_WINDOW_H_
