#include "host/window/view/guest_frame.h"

#include <QPainter>

#include "host/look/theme.h"

namespace tavi {

namespace {

constexpr QSize kLeastSize(240, 135);

}  // namespace

GuestFrame::GuestFrame(QWidget* view, QWidget* parent) : QWidget(parent), view_(view) {
  view_->setParent(this);
  setMinimumSize(kLeastSize);
}

void GuestFrame::SetShape(const QSize& shape) {
  shape_ = shape;
  Place();
}

void GuestFrame::resizeEvent(QResizeEvent* /*event*/) { Place(); }

void GuestFrame::paintEvent(QPaintEvent* /*event*/) { QPainter(this).fillRect(rect(), theme::Colors().backdrop); }

void GuestFrame::Place() {
  const QSize size = shape_.isEmpty() ? this->size() : shape_.scaled(this->size(), Qt::KeepAspectRatio);
  QRect place(QPoint(0, 0), size);
  place.moveCenter(rect().center());
  const bool is_resized = view_->size() != size;
  view_->setGeometry(place);
  if (is_resized) Q_EMIT ViewResized();
}

}  // namespace tavi
