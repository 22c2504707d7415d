#include "host/window/look_menu.h"

#include <QActionGroup>
#include <QApplication>

#include "host/look/theme.h"

namespace tavi {

using theme::Look;

LookMenu::LookMenu(QWidget* parent) : QMenu(parent) {
  auto* group = new QActionGroup(this);
  const std::pair<Look, QString> rows[] = {{Look::kDesktop, QStringLiteral("As the desktop")},
                                           {Look::kLight, QStringLiteral("Light")},
                                           {Look::kDark, QStringLiteral("Dark")}};
  for (const auto& [look, text] : rows) {
    QAction* action = group->addAction(addAction(text));
    action->setCheckable(true);
    theme::Follow(action, [action, look = look] { action->setChecked(theme::CurrentLook() == look); });
    connect(action, &QAction::triggered, this, [look = look] { theme::Apply(qApp, look); });
  }
}

}  // namespace tavi
