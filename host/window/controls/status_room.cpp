#include "host/window/controls/status_room.h"

#include <utility>

#include <QEvent>
#include <QLabel>
#include <QStatusBar>

namespace tavi {

namespace {

constexpr int kAround = 24;    // of the bar: its edges, its size grip, the gaps between texts
constexpr int kGap = 6;        // between two labels
constexpr int kUsualPart = 2;  // the usual text may push labels out once per this many pixels

int WidthOf(const QLabel* label) { return label->isHidden() ? 0 : label->sizeHint().width() + kGap; }

}  // namespace

StatusRoom::StatusRoom(QStatusBar* bar, QLabel* usual, const QVector<QLabel*>& waiting)
    : QObject(bar), bar_(bar), usual_(usual), waiting_(waiting) {
  bar->installEventFilter(this);
  connect(bar, &QStatusBar::messageChanged, this, &StatusRoom::Arrange);
}

// A changed text needs a new layout.
bool StatusRoom::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) Arrange();
  return QObject::eventFilter(watched, event);
}

// Hidden labels keep their visible flag: their owners decide whether they are shown.
void StatusRoom::Arrange() {
  const QString message = bar_->currentMessage();
  const int usual = qMin(usual_->sizeHint().width(), bar_->width() / kUsualPart);
  int wanted = kAround + (message.isEmpty() ? usual : bar_->fontMetrics().horizontalAdvance(message));
  for (const QLabel* label : std::as_const(waiting_)) wanted += WidthOf(label);
  for (QLabel* label : std::as_const(waiting_)) {
    const bool steps_back = wanted > bar_->width();
    if (steps_back) wanted -= WidthOf(label);
    label->setMaximumWidth(steps_back ? 0 : QWIDGETSIZE_MAX);
  }
  bar_->setToolTip(message);
}

}  // namespace tavi
