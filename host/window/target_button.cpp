#include "host/window/target_button.h"

#include <QAction>
#include <QMenu>

#include "host/target/guest_targets.h"
#include "host/window/controls/control_focus.h"

namespace tavi {

using State = TargetStatus::State;

namespace {

constexpr int kRefreshMs = 1000;  // of the line rate and of delays
constexpr int kLongestName = 40;  // of a target, in characters; commands may be of any length

// In menus, "&" marks a mnemonic.
QString ShortName(const TargetStatus& status, const QFontMetrics& metrics) {
  QString name = metrics.elidedText(status.name, Qt::ElideMiddle, kLongestName * metrics.averageCharWidth());
  return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

TargetButton::TargetButton(GuestTargets* targets, QWidget* parent)
    : QToolButton(parent), targets_(targets), menu_(new QMenu(QStringLiteral("Guests"), this)) {
  setMenu(menu_);
  setPopupMode(QToolButton::InstantPopup);
  ReachByTab(this);
  setAccessibleName(menu_->title());
  setAutoRaise(true);
  setToolTip(QStringLiteral("The guests that get the lines"));
  connect(menu_, &QMenu::aboutToShow, this, &TargetButton::FillMenu);
  connect(targets_, &GuestTargets::Changed, this, &TargetButton::ShowStates);
  connect(targets_, &GuestTargets::Message, this, &TargetButton::Message);
  connect(&refresh_, &QTimer::timeout, this, &TargetButton::ShowStates);
  refresh_.setInterval(kRefreshMs);
  ShowStates();
}

void TargetButton::Add(const TargetAddress& address) { targets_->Add(address); }

// A single target is described in full; of several, the number of connected ones. The menu describes each.
void TargetButton::ShowStates() {
  const int count = targets_->Count();
  setVisible(count > 0);
  if (count == 0) return refresh_.stop();
  if (!refresh_.isActive()) refresh_.start();
  if (count == 1) return setText(QStringLiteral("Guest: ") + DescribeStatus(targets_->StatusOf(0)));
  int connected = 0;
  for (int target = 0; target < count; ++target) {
    if (targets_->StatusOf(target).state == State::kConnected) ++connected;
  }
  setText(QStringLiteral("Guests: %1 of %2 connected").arg(connected).arg(count));
}

void TargetButton::FillMenu() {
  menu_->clear();
  for (int target = 0; target < targets_->Count(); ++target) AddEntries(target);
}

void TargetButton::AddEntries(int target) {
  const TargetStatus status = targets_->StatusOf(target);
  menu_->addSection(ShortName(status, fontMetrics()));
  menu_->addAction(DescribeStatus(status))->setEnabled(false);
  QAction* on = menu_->addAction(QStringLiteral("Send lines"));
  on->setCheckable(true);
  on->setChecked(status.state != State::kOff);
  connect(on, &QAction::triggered, targets_, [this, target](bool checked) { targets_->Switch(target, checked); });
  QAction* again = menu_->addAction(QStringLiteral("Try again"));
  again->setEnabled(status.state != State::kOff);
  connect(again, &QAction::triggered, targets_, [this, target] { targets_->TryAgain(target); });
}

}  // namespace tavi
