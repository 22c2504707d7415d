#include "host/window/status_line.h"

#include <QApplication>
#include <QLabel>
#include <QStatusBar>

#include "host/gamepad/gamepad_poll.h"
#include "host/gamepad/gamepads.h"
#include "host/window/controls/status_room.h"
#include "host/window/mirror_label.h"
#include "host/window/target_button.h"
#include "host/window/view/window_state.h"

namespace tavi {

namespace {

constexpr int kLabelGap = 16;
constexpr int kMessageMs = 8000;

QString PadsText(const Gamepads& pads) {
  if (!GamepadPoll::IsSupported()) return QStringLiteral("Built without gamepads");
  if (pads.Count() == 0) return QStringLiteral("No gamepad");
  return pads.Count() == 1 ? pads.LastUsedName() : QStringLiteral("%1 gamepads").arg(pads.Count());
}

}  // namespace

StatusLine::StatusLine(QStatusBar* bar, MirrorLabel* mirrors, TargetButton* targets, QLabel* display)
    : QObject(bar), bar_(bar), keymaps_(new QLabel), state_(new QLabel), pads_(new QLabel) {
  connect(mirrors, &MirrorLabel::Message, this, &StatusLine::Tell);
  connect(targets, &TargetButton::Message, this, &StatusLine::Tell);
  keymaps_->setMinimumWidth(1);  // a long name must not widen the window
  bar->addWidget(keymaps_, 1);
  for (QLabel* label : {state_, static_cast<QLabel*>(mirrors), pads_}) {
    label->setContentsMargins(0, 0, kLabelGap, 0);
    bar->addPermanentWidget(label);
  }
  bar->addPermanentWidget(targets);
  bar->addPermanentWidget(display);
  new StatusRoom(bar, keymaps_, {pads_, display, mirrors, state_});
}

void StatusLine::Tell(const QString& text, bool is_problem) {
  if (is_problem) QApplication::beep();
  bar_->showMessage(text, kMessageMs);
}

void StatusLine::TellAgain() {
  const QString told = bar_->currentMessage();
  if (told.isEmpty()) return;
  bar_->clearMessage();
  bar_->showMessage(told, kMessageMs);
}

void StatusLine::ShowKeymaps(const QString& contents, const QString& paths) {
  keymaps_->setText(contents);
  keymaps_->setToolTip(paths);
}

void StatusLine::ShowPads(const Gamepads& pads) { pads_->setText(PadsText(pads)); }

void StatusLine::ShowState(const StateWord& word) {
  state_->setText(QStringLiteral("<span style='color:%1'>\u25CF</span> %2").arg(word.color.name(), word.text));
}

}  // namespace tavi
