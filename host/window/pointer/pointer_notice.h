#ifndef HOST_WINDOW_POINTER_POINTER_NOTICE_H_
#define HOST_WINDOW_POINTER_POINTER_NOTICE_H_

#include <QFrame>

#include "host/system/window_system.h"

class QAction;
class QLabel;
class QToolButton;

namespace tavi {

class PointerCapture;

// Shows above the view that view control does not get the mouse, or may lose it, and offers a remedy. It is shown only
// with a keymap that has view control.
class PointerNotice : public QFrame {
  Q_OBJECT

 public:
  // `full_screen` is the window's switch. Nothing is owned, and everything outlives the notice.
  PointerNotice(WindowSystem system, const PointerCapture* capture, QAction* full_screen, QWidget* parent = nullptr);

  // Empty while it is hidden.
  QString Text() const;

 private:
  void Update();
  QString SystemText() const;

  const WindowSystem system_;
  const PointerCapture* const capture_;
  const QAction* const full_screen_;
  QLabel* text_;
  QToolButton* offer_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_POINTER_NOTICE_H_
