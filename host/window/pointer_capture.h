#ifndef HOST_WINDOW_POINTER_CAPTURE_H_
#define HOST_WINDOW_POINTER_CAPTURE_H_

#include <QPoint>
#include <QPointer>

class QWidget;

namespace tavi {

// Keeps the pointer near the middle of a widget and hidden, so that only its movement counts.
//
// The pointer is put back to the middle when it strays, which window systems other than X11 and Windows may refuse.
// Main thread.
class PointerCapture {
 public:
  explicit PointerCapture(QWidget* widget);
  ~PointerCapture();
  PointerCapture(const PointerCapture&) = delete;
  PointerCapture& operator=(const PointerCapture&) = delete;

  bool IsActive() const { return active_; }
  // When the capture ends the pointer is back where it began.
  void SetActive(bool active);

  // Takes a move of the pointer to `position` of the widget and gives what its user moved it by, in pixels.
  QPoint TakeMovement(const QPoint& position);

 private:
  QPoint Middle() const;
  void PutBack();

  QPointer<QWidget> widget_;
  bool active_ = false;
  QPoint start_;              // of the screen
  QPoint last_;               // of the widget, where the last move went
  bool is_put_back_ = false;  // and the move that tells so has not come yet
};

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_CAPTURE_H_
