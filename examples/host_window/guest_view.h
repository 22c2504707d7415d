// The widget that shows the guest and feeds its input to the library. A process has only one, as it has one library.
#ifndef GUEST_VIEW_H_
#define GUEST_VIEW_H_

#include <QEvent>
#include <QWidget>

class QTouchEvent;

class GuestView : public QWidget {
  Q_OBJECT

 public:
  GuestView();
  ~GuestView() override;

  // Sets the send functions, initialises the library, and loads a keymap. Call it once.
  void Start(const QString& keymap);

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  friend struct Callbacks;

  QPointF ToGuest(const QPointF& position) const;
  void HandleKey(const QKeyEvent& event);
  void SendMouse(QEvent::Type type, const QMouseEvent& event);
  void SendTouch(const QTouchEvent& event);
  void PassEverythingThrough(bool on);
  void SetTextField(bool focused);
  void SetCaptured(bool captured);

  bool passes_through_ = false;
  bool text_field_ = false;  // the guest has a text field focused
  bool captured_ = false;    // the mouse turns the view
  int wheel_turn_ = 0;       // since the last notch, in eighths of a degree
};

#endif  // GUEST_VIEW_H_
