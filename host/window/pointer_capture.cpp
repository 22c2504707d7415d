#include "host/window/pointer_capture.h"

#include <QCursor>
#include <QWidget>

namespace tavi {

namespace {

constexpr int kLeash = 4;  // the pointer strays up to this part of the widget's size

}  // namespace

PointerCapture::PointerCapture(QWidget* widget) : widget_(widget) {}

PointerCapture::~PointerCapture() { SetActive(false); }

void PointerCapture::SetActive(bool active) {
  if (active == active_ || !widget_) return;
  active_ = active;
  if (active) {
    start_ = QCursor::pos();
    last_ = widget_->mapFromGlobal(start_);
    widget_->setCursor(Qt::BlankCursor);
    PutBack();
  } else {
    widget_->unsetCursor();
    QCursor::setPos(start_);
  }
}

// Between the order to put the pointer back and the move that does it, moves of the user's own may come, still on the
// way that the pointer was on: they count from each other. The move to the middle counts for nothing.
QPoint PointerCapture::TakeMovement(const QPoint& position) {
  const bool is_landing = is_put_back_ && position == Middle();
  const QPoint movement = is_landing ? QPoint() : position - last_;
  last_ = position;
  if (is_landing) is_put_back_ = false;
  const QPoint strayed = position - Middle();
  const bool is_far = qAbs(strayed.x()) > widget_->width() / kLeash || qAbs(strayed.y()) > widget_->height() / kLeash;
  if (is_far && !is_put_back_) PutBack();
  return movement;
}

void PointerCapture::PutBack() {
  is_put_back_ = last_ != Middle();  // where it is already no move will tell
  QCursor::setPos(widget_->mapToGlobal(Middle()));
}

QPoint PointerCapture::Middle() const { return widget_->rect().center(); }

}  // namespace tavi
