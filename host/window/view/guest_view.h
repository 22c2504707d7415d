#ifndef HOST_WINDOW_VIEW_GUEST_VIEW_H_
#define HOST_WINDOW_VIEW_GUEST_VIEW_H_

#include <QEvent>
#include <QSet>

#include "host/session/key_repeat_filter.h"
#include "host/window/controls/stale_repeats.h"
#include "host/window/pointer/pointer_capture.h"
#include "host/window/view/drawn_overlay.h"
#include "host/window/view/guest_screen.h"

namespace tavi {

// The guest's display with the overlay of a keymap. It passes its input to the library. Positions are passed in pixels
// of the guest, however large it is shown, so that for the library the view is as large as the guest's display, or a
// multiple of it (LiveHost::ViewSize).
//
// All keys go to the guest while the view has the focus, including those that move the focus or open menus. What is
// pressed is released when the view loses the focus, unless a macro asked to hold it.
class GuestView : public GuestScreen {
  Q_OBJECT

 public:
  explicit GuestView(QWidget* parent = nullptr);
  ~GuestView() override;

  void SetMarks(const QVector<OverlayMark>& marks);
  void SetOverlayShown(bool shown);
  // The keys of the overlay are disabled at the moment.
  void SetOverlayDimmed(bool dimmed);
  // Shown in the middle while the guest's screen is empty.
  void SetHint(const QString& hint);
  const QString& Hint() const { return hint_; }
  // Another widget covers this part of the view; keys of the overlay move out of its way.
  void SetCovered(const QRect& covered);
  // The corner of the view that has the coordinates `size` for the library: LiveHost::Corner.
  QPoint Corner(const QSize& size) const;
  // Holds the pointer while the library uses nothing but its movement.
  const PointerCapture& Capture() const { return capture_; }

 Q_SIGNALS:
  // An input method is composing; `text` is the whole composition.
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
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void PaintOverFingers(QPainter* painter) override;

 private:
  void TakeInputStatus(int status);
  void TakeTextField(bool focused);

  bool HandleKey(QKeyEvent* event);
  // Whether the press that belongs to a release was received here.
  bool IsWhole(const QEvent& event, quint32 scancode);
  bool HandleTouch(QEvent* event);
  // Passes an event to the library, after all earlier ones.
  void Send(QEvent* event);
  void SendMouse(QEvent::Type type, const QMouseEvent& event);
  // Movement of a held mouse, in counts.
  void SendWay(int dx, int dy);
  void ReleaseInput();
  // From pixels of the view.
  QPointF ToGuest(const QPointF& place) const;

  void PaintHint(QPainter* painter) const;

  DrawnOverlay overlay_;
  bool overlay_shown_ = true;
  bool overlay_dimmed_ = false;
  QString hint_;
  PointerCapture capture_;
  KeyRepeatFilter key_repeats_;
  QSet<quint32> pressed_;  // scan codes that were pressed here
  StaleRepeats stale_repeats_;
  const bool may_repeat_as_release_;  // the window system repeats keys like X11
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_VIEW_H_
