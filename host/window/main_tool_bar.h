#ifndef HOST_WINDOW_MAIN_TOOL_BAR_H_
#define HOST_WINDOW_MAIN_TOOL_BAR_H_

#include <QToolBar>

class QAction;
class QMenu;

namespace tavi {

// The upper row of buttons: keymaps, mapping, display options, and the back key. Clicking them moves no focus, so that
// the keys still go to the guest.
class MainToolBar : public QToolBar {
  Q_OBJECT

 public:
  // Actions of other parts of the window; not owned.
  struct Parts {
    QMenu* guest;
    QAction* edit;
    QAction* log;
    QAction* events;
  };

  explicit MainToolBar(const Parts& parts, QWidget* parent = nullptr);

  // Checked while the mapping is on.
  QAction* MappingOn() const { return mapping_on_; }
  QAction* LetGo() const { return let_go_; }
  // Shows the keymap over the guest.
  QAction* Overlay() const { return overlay_; }

  // The names of the keys that do the same.
  void TellPauseKey(const QString& name);
  void TellPanicKey(const QString& name);

 Q_SIGNALS:
  void KeymapWanted();
  void JoystickKeymapWanted();
  void OverlayToggled(bool shown);

 private:
  QAction* AddButton(const QString& text, const QString& hint);
  QAction* AddSwitch(const QString& text, const QString& hint, bool on);
  void AddMenuButton(const QString& text, QMenu* menu);

  void AddKeymapButtons(const Parts& parts);
  void AddSwitches(const Parts& parts);
  void AddGuestButtons();

  QAction* mapping_on_ = nullptr;
  QAction* let_go_ = nullptr;
  QAction* overlay_ = nullptr;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MAIN_TOOL_BAR_H_
