#include "host/window/pointer/pointer_lock.h"

#include <utility>

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include "qt/mouse_events.h"

namespace tavi {

namespace {

class MissingPointerLock : public PointerLock {
 public:
  Outcome Hold(QWidget* /*view*/, WaySink /*sink*/) override {
    return {Result::kImpossible,
            QStringLiteral("This window system lets no program hold the mouse, so view control does not work.")};
  }
  void Release() override {}
};

// Without a window system there is no mouse: programs move the view's pointer, and each movement starts at the last
// position.
class OffscreenPointerLock : public QObject, public PointerLock {
 public:
  ~OffscreenPointerLock() override { Release(); }

  Outcome Hold(QWidget* view, WaySink sink) override {
    view_ = view;
    sink_ = std::move(sink);
    last_ = view->rect().center();
    view->installEventFilter(this);
    QCursor::setPos(view->mapToGlobal(view->rect().center()));
    return {};
  }
  void Release() override {
    if (view_) view_->removeEventFilter(this);
    view_ = nullptr;
  }

 protected:
  bool eventFilter(QObject* /*view*/, QEvent* event) override {
    if (event->type() != QEvent::MouseMove) return false;
    const QPointF place = qt::PlaceOf(*static_cast<QMouseEvent*>(event));
    sink_(place - std::exchange(last_, place));
    return true;
  }

 private:
  QPointer<QWidget> view_;
  WaySink sink_;
  QPointF last_;
};

}  // namespace

std::unique_ptr<PointerLock> MakePointerLock() {
  const QString platform = QGuiApplication::platformName();
  if (platform == QLatin1String("offscreen")) return std::make_unique<OffscreenPointerLock>();
  std::unique_ptr<PointerLock> native = MakeNativePointerLock(platform);
  return native ? std::move(native) : std::make_unique<MissingPointerLock>();
}

// A window may extend beyond the screens.
QPoint MiddleInWindow(const QWidget& view) {
  const QRect whole(view.mapToGlobal(QPoint()), view.size());
  const QRect seen = whole & view.screen()->virtualGeometry();
  const QPoint middle = (seen.isEmpty() ? whole : seen).center() - view.window()->mapToGlobal(QPoint());
  return (QPointF(middle) * view.devicePixelRatioF()).toPoint();
}

}  // namespace tavi
