#ifndef HOST_WINDOW_POINTER_POINTER_LOCK_H_
#define HOST_WINDOW_POINTER_POINTER_LOCK_H_

#include <functional>
#include <memory>

#include <QPoint>
#include <QPointF>
#include <QString>

class QWidget;

namespace tavi {

// Holds the pointer in the middle of a view and reports the mouse's movement in its own counts, without acceleration
// and without stopping at the edges of the screen. Buttons and the wheel remain events of the view.
//
// There is one implementation for each window system. Main thread.
class PointerLock {
 public:
  // Receives a movement in counts, which may have fractions.
  using WaySink = std::function<void(const QPointF& way)>;

  enum class Result {
    kHeld,
    kBusy,        // not now: another program holds the pointer, or the view is not on the screen
    kImpossible,  // never on this window system
  };
  struct Outcome {
    Result result = Result::kHeld;
    QString reason;  // for display; empty when it is held
  };

  virtual ~PointerLock() = default;

  // Either holds the pointer and sends its movement to `sink`, or changes nothing. The view must have a window, and
  // exist until Release. Must not be called while it holds.
  virtual Outcome Hold(QWidget* view, WaySink sink) = 0;
  // Releases the pointer and leaves it where it is. Does nothing if it does not hold.
  virtual void Release() = 0;
};

// The lock for the application's window system. If that has none, the lock's Hold returns kImpossible.
std::unique_ptr<PointerLock> MakePointerLock();

// The lock of the platform's own window system; null if that has another name. `platform` is Qt's name of it.
std::unique_ptr<PointerLock> MakeNativePointerLock(const QString& platform);

// The middle of the visible part of the view, in its window and in the window system's pixels.
QPoint MiddleInWindow(const QWidget& view);

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_POINTER_LOCK_H_
