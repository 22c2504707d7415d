#include "host/window/main_tool_bar.h"

#include <QAction>
#include <QToolButton>

#include "host/session/live_host.h"
#include "host/window/controls/control_focus.h"
#include "host/window/look_menu.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

MainToolBar::MainToolBar(const Parts& parts, QWidget* parent) : QToolBar(QStringLiteral("Tools"), parent) {
  setObjectName(QStringLiteral("tools"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  AddKeymapButtons(parts);
  addSeparator();
  AddSwitches(parts);
  addSeparator();
  AddGuestButtons();
  ReachByTab(this);
  toggleViewAction()->setVisible(false);  // always shown
}

void MainToolBar::AddKeymapButtons(const Parts& parts) {
  QAction* open = AddButton(QStringLiteral("Open\u2026"), QStringLiteral("Use another keymap"));
  connect(open, &QAction::triggered, this, &MainToolBar::KeymapWanted);
  QAction* open_joystick =
      AddButton(QStringLiteral("Gamepad\u2026"), QStringLiteral("Use another keymap for gamepads"));
  connect(open_joystick, &QAction::triggered, this, &MainToolBar::JoystickKeymapWanted);
  AddMenuButton(QStringLiteral("Guest"), parts.guest);
  addAction(parts.edit);
}

void MainToolBar::AddSwitches(const Parts& parts) {
  mapping_on_ = AddSwitch(QStringLiteral("Mapping"), QString(), true);
  overlay_ = AddSwitch(QStringLiteral("Keys"), QStringLiteral("Show the keymap over the guest"), true);
  connect(overlay_, &QAction::toggled, this, &MainToolBar::OverlayToggled);
  QAction* text = AddSwitch(QStringLiteral("Text field"),
                            QStringLiteral("Act as if a text field of the guest had the focus: keys are typed"), false);
  connect(text, &QAction::toggled, this, [](bool on) { LiveHost::GetInstance()->SetTextField(on); });
  addAction(parts.log);
  addAction(parts.events);
}

void MainToolBar::AddGuestButtons() {
  QAction* back = AddButton(QStringLiteral("Back"), QStringLiteral("Click the guest's back key"));
  connect(back, &QAction::triggered, this, [] { taviinputmanager::doBackAction(LiveHost::kDisplay); });
  let_go_ = AddButton(QStringLiteral("Release all"), QString());
  addSeparator();
  AddMenuButton(QStringLiteral("Look"), new LookMenu(this));
}

void MainToolBar::TellPauseKey(const QString& name) {
  mapping_on_->setToolTip(QStringLiteral("Off: keys and buttons pass through to the guest (%1)").arg(name));
}

void MainToolBar::TellPanicKey(const QString& name) {
  let_go_->setToolTip(QStringLiteral("Lift every finger and key of the guest, end replays and macros (%1)").arg(name));
}

QAction* MainToolBar::AddButton(const QString& text, const QString& hint) {
  QAction* action = addAction(text);
  action->setToolTip(hint);
  return action;
}

QAction* MainToolBar::AddSwitch(const QString& text, const QString& hint, bool on) {
  QAction* action = AddButton(text, hint);
  action->setCheckable(true);
  action->setChecked(on);
  return action;
}

void MainToolBar::AddMenuButton(const QString& text, QMenu* menu) {
  auto* button = new QToolButton(this);
  button->setText(text);
  menu->setTitle(text);
  button->setMenu(menu);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setAccessibleName(text);
  addWidget(button);
}

}  // namespace tavi
