#ifndef HOST_WINDOW_MAIN_TOOL_BAR_H_
#define HOST_WINDOW_MAIN_TOOL_BAR_H_

#include <QToolBar>

class QAction;
class QMenu;

namespace tavi {

// The upper row of buttons: keymaps, what is mapped and shown, what the guest is told. A click at them takes no
// focus, so that the keys stay the guest's.
class MainToolBar : public QToolBar {
  Q_OBJECT

 public:
  // What other parts of the window bring along; not owned.
  struct Parts {
    QMenu* guest;
    QAction* edit;
    QAction* log;
    QAction* events;
  };

  explicit MainToolBar(const Parts& parts, QWidget* parent = nullptr);

  // On while the mapping is.
  QAction* MappingOn() const { return mapping_on_; }
  QAction* LetGo() const { return let_go_; }
  // Shows the keymap over the guest.
  QAction* Overlay() const { return overlay_; }

  // The keys that do the same, by their names.
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
