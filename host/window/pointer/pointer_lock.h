#ifndef HOST_WINDOW_POINTER_POINTER_LOCK_H_
#define HOST_WINDOW_POINTER_POINTER_LOCK_H_

#include <functional>
#include <memory>

#include <QPoint>
#include <QPointF>
#include <QString>

class QWidget;

namespace tavi {

// Holds the pointer in the middle of a view, and tells the ways of its mouse as the mouse counts them, neither
// accelerated nor stopped by the edges of a screen. Buttons and the wheel stay events of the view.
//
// One implementation a window system. Main thread.
class PointerLock {
 public:
  // Takes a way in counts, which may have fractions.
  using WaySink = std::function<void(const QPointF& way)>;

  enum class Result {
    kHeld,
    kBusy,        // not now: someone else holds the pointer, or the view is not on the screen
    kImpossible,  // never on this window system
  };
  struct Outcome {
    Result result = Result::kHeld;
    QString reason;  // for people; empty when it is held
  };

  virtual ~PointerLock() = default;

  // Either holds the pointer, the ways going to `sink`, or leaves everything as it was. The view has a window, and
  // stays until Release. Not called while it holds.
  virtual Outcome Hold(QWidget* view, WaySink sink) = 0;
  // Leaves the pointer where it is. Nothing when it does not hold.
  virtual void Release() = 0;
};

// Of the window system that the application runs on; one whose Hold is impossible where there is no way.
std::unique_ptr<PointerLock> MakePointerLock();

// What the platform's own window system has; null for one of another name. `platform` is Qt's name of it.
std::unique_ptr<PointerLock> MakeNativePointerLock(const QString& platform);

// The middle of what is seen of the view, in its window and in the window system's pixels.
QPoint MiddleInWindow(const QWidget& view);

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_POINTER_LOCK_H_
