#ifndef HOST_WINDOW_GUEST_VIEW_H_
#define HOST_WINDOW_GUEST_VIEW_H_

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include "host/guest_model.h"
#include "host/window/contact_trails.h"
#include "host/window/key_repeat_filter.h"
#include "host/window/keymap_overlay.h"
#include "host/window/pointer_capture.h"

namespace tavi {

struct TimelineEntry;

// The view that shows the guest: gives its input to the library, and draws what a guest would make of the lines that
// come back.
//
// All keys are the guest's while the view has the focus, those that move the focus or open menus among them. What is
// pressed is let go when the view loses the focus, unless a macro asked to hold it.
class GuestView : public QWidget {
  Q_OBJECT

 public:
  explicit GuestView(QWidget* parent = nullptr);
  ~GuestView() override;

  const GuestModel& Model() const { return model_; }

  void SetMarks(const QVector<OverlayMark>& marks);
  void SetOverlayShown(bool shown);
  // Shown in the middle while the guest has nothing to show.
  void SetHint(const QString& hint);

 Q_SIGNALS:
  // The model has taken a line.
  void ModelChanged();
  // An input method composes, and what it has is the whole of `text`.
  void Composing(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void TakeEntry(const TimelineEntry& entry);
  void TakeInputStatus(int status);
  void TakeTextField(bool focused);

  bool HandleKey(QKeyEvent* event);
  bool HandleTouch(QEvent* event);
  // Hands an event to the library, behind all that came before it.
  void Send(QEvent* event);
  void SendMouse(QEvent::Type type, const QMouseEvent& event);
  void ReleaseInput();

  void PaintBackground(QPainter* painter) const;
  void PaintHint(QPainter* painter) const;
  void PaintGuest(QPainter* painter) const;

  GuestModel model_;
  ContactTrails trails_;
  KeymapOverlay overlay_;
  bool overlay_shown_ = true;
  QString hint_;
  PointerCapture capture_;
  KeyRepeatFilter key_repeats_;
  const bool may_repeat_as_release_;  // the window system repeats keys as X11 does
  QElapsedTimer clock_;
  QBasicTimer fading_;
  qint64 wheel_ms_;  // when the wheel was last turned
};

}  // namespace tavi

#endif  // HOST_WINDOW_GUEST_VIEW_H_
