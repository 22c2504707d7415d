#ifndef HOST_WINDOW_POINTER_POINTER_CAPTURE_H_
#define HOST_WINDOW_POINTER_POINTER_CAPTURE_H_

#include <memory>

#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QString>

#include "host/window/pointer/pointer_lock.h"

class QWidget;

namespace tavi {

// Holds the pointer for a view, hidden, while that is wanted and the view has the focus. When the hold ends, the
// pointer returns to where it was.
//
// While another program holds the pointer, the capture retries ten times a second, and behaves as if it was not wanted.
// Main thread.
class PointerCapture : public QObject {
  Q_OBJECT

 public:
  // `view` outlives the capture.
  explicit PointerCapture(QWidget* view, std::unique_ptr<PointerLock> lock = MakePointerLock());
  ~PointerCapture() override;

  // Only movement counts while it is held.
  bool IsHeld() const { return is_held_; }
  void SetWanted(bool wanted);

  // Why the pointer is not held though it should be; empty otherwise.
  const QString& Problem() const { return problem_; }

 Q_SIGNALS:
  // The mouse moved by this many counts. Fractions are carried over to the next signal.
  void Moved(int dx, int dy);
  void ProblemChanged();

 protected:
  bool eventFilter(QObject* view, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void Update();
  void Take();
  void GiveBack();
  void Retry(const QString& reason);
  void Count(const QPointF& way);
  void SetProblem(const QString& problem);

  QWidget* const view_;
  const std::unique_ptr<PointerLock> lock_;
  bool is_wanted_ = false;
  bool is_held_ = false;
  QPoint start_;  // on the screen
  QPointF rest_;  // counts that were not emitted yet, less than one
  QBasicTimer retrying_;
  QString problem_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_POINTER_CAPTURE_H_
