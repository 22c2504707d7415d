#include "host/window/controls/control_focus.h"

#include <utility>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDockWidget>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QMainWindow>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace tavi {

namespace {

// Qt creates them itself.
constexpr char kMoreButton[] = "qt_toolbar_ext_button";
constexpr char kCloseButton[] = "qt_dockwidget_closebutton";

bool IsButton(const QWidget* widget) { return qobject_cast<const QToolButton*>(widget) != nullptr; }

QVector<QWidget*> ButtonsOf(const QToolBar* bar) {
  QVector<QWidget*> buttons;
  for (QAction* action : bar->actions()) {
    QWidget* widget = bar->widgetForAction(action);
    if (IsButton(widget)) buttons += widget;
  }
  return buttons;
}

}  // namespace

ControlFocus::ControlFocus(QMainWindow* window, QWidget* view)
    : QObject(window), window_(window), view_(view), frame_(new QFocusFrame(window)) {
  window->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) { Mark(now); });
  NameParts();
}

// Buttons and fields draw their own focus; lists do not.
void ControlFocus::Mark(QWidget* focused) {
  const bool is_list = qobject_cast<QAbstractScrollArea*>(focused) != nullptr && focused->window() == window_;
  frame_->setWidget(is_list ? focused : nullptr);
}

void ControlFocus::SetBars(const QVector<QToolBar*>& bars) {
  bars_ = bars;
  QWidget* before = nullptr;
  for (const QToolBar* bar : bars) {
    for (QWidget* button : ButtonsOf(bar)) {
      if (before != nullptr) QWidget::setTabOrder(before, button);
      before = button;
    }
  }
}

void ControlFocus::Take() {
  if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) return;
  for (const QToolBar* bar : std::as_const(bars_)) {
    for (QWidget* button : ButtonsOf(bar)) {
      if (button->isVisible() && button->isEnabled()) return button->setFocus(Qt::ShortcutFocusReason);
    }
  }
}

// The focus moves when Escape is released: the guest must not get half a keystroke.
bool ControlFocus::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ChildPolished:
    case QEvent::LayoutRequest: NameParts(); break;
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) is_leaving_ = true;
      break;
    case QEvent::KeyRelease: {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (!is_leaving_ || key->key() != Qt::Key_Escape || key->isAutoRepeat()) break;
      is_leaving_ = false;
      view_->setFocus();
      return true;
    }
    default: break;
  }
  return QObject::eventFilter(watched, event);
}

// Buttons that expand a bar or close a dock, and the tabs of docks that share an area.
void ControlFocus::NameParts() {
  for (auto* button : window_->findChildren<QToolButton*>(QLatin1String(kMoreButton))) {
    button->setAccessibleName(QStringLiteral("More of %1").arg(button->parentWidget()->windowTitle()));
  }
  for (auto* dock : window_->findChildren<QDockWidget*>()) {
    auto* button = dock->findChild<QAbstractButton*>(QLatin1String(kCloseButton));
    if (button == nullptr) continue;
    button->setAccessibleName(QStringLiteral("Close %1").arg(dock->windowTitle()));
    ReachByTab(button);
  }
  for (auto* tabs : window_->findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
    tabs->setAccessibleName(QStringLiteral("Lists in this area"));
    ReachByTab(tabs);
  }
}

void ReachByTab(QWidget* control) { control->setFocusPolicy(Qt::TabFocus); }

void ReachByTab(QToolBar* bar) {
  for (QWidget* button : ButtonsOf(bar)) ReachByTab(button);
  for (QAction* action : bar->actions()) {
    const QWidget* widget = bar->widgetForAction(action);
    if (action->text().isEmpty() && widget != nullptr) action->setText(widget->accessibleName());
  }
}

}  // namespace tavi
