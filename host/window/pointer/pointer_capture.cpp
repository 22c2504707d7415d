#include "host/window/pointer/pointer_capture.h"

#include <cmath>
#include <utility>

#include <QCursor>
#include <QEvent>
#include <QTimerEvent>
#include <QWidget>

namespace tavi {

namespace {

constexpr int kRetryMs = 100;

}  // namespace

PointerCapture::PointerCapture(QWidget* view, std::unique_ptr<PointerLock> lock) : view_(view), lock_(std::move(lock)) {
  view_->installEventFilter(this);
}

PointerCapture::~PointerCapture() {
  blockSignals(true);
  GiveBack();
}

void PointerCapture::SetWanted(bool wanted) {
  is_wanted_ = wanted;
  Update();
}

bool PointerCapture::eventFilter(QObject* /*view*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::Show: Update(); break;
    case QEvent::FocusOut:
    case QEvent::Hide: GiveBack(); break;
    default: break;
  }
  return false;
}

void PointerCapture::timerEvent(QTimerEvent* event) {
  if (event->timerId() != retrying_.timerId()) return QObject::timerEvent(event);
  Update();
}

void PointerCapture::Update() {
  const bool is_due = is_wanted_ && view_->hasFocus() && view_->isVisible();
  if (!is_due) return GiveBack();
  if (!is_held_) Take();
}

void PointerCapture::Take() {
  const QPoint start = QCursor::pos();
  const PointerLock::Outcome outcome = lock_->Hold(view_, [this](const QPointF& way) { Count(way); });
  if (outcome.result == PointerLock::Result::kBusy) return Retry(outcome.reason);
  retrying_.stop();
  SetProblem(outcome.reason);
  if (outcome.result == PointerLock::Result::kImpossible) return;
  is_held_ = true;
  start_ = start;
  rest_ = {};
  view_->setCursor(Qt::BlankCursor);
}

// Many programs hold the pointer only for a moment, so the first refusal is not reported.
void PointerCapture::Retry(const QString& reason) {
  if (retrying_.isActive()) return SetProblem(reason);
  retrying_.start(kRetryMs, this);
}

void PointerCapture::GiveBack() {
  retrying_.stop();
  SetProblem(QString());
  if (!std::exchange(is_held_, false)) return;
  lock_->Release();
  view_->unsetCursor();
  QCursor::setPos(start_);
}

void PointerCapture::Count(const QPointF& way) {
  rest_ += way;
  const QPoint counts(static_cast<int>(std::trunc(rest_.x())), static_cast<int>(std::trunc(rest_.y())));
  rest_ -= counts;
  if (!counts.isNull()) Q_EMIT Moved(counts.x(), counts.y());
}

void PointerCapture::SetProblem(const QString& problem) {
  if (problem == std::exchange(problem_, problem)) return;
  Q_EMIT ProblemChanged();
}

}  // namespace tavi
