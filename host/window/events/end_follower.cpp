#include "host/window/events/end_follower.h"

#include <QScrollBar>

namespace tavi {

EndFollower::EndFollower(QScrollBar* bar) : QObject(bar), bar_(bar) {
  connect(bar, &QScrollBar::valueChanged, this, [this](int value) { is_following_ = value == bar_->maximum(); });
  connect(bar, &QScrollBar::rangeChanged, this, [this] {
    if (is_following_) GoToEnd();
  });
}

void EndFollower::GoToEnd() {
  is_following_ = true;
  bar_->setValue(bar_->maximum());
}

}  // namespace tavi
