#ifndef HOST_WINDOW_CONTROLS_CONTROL_FOCUS_H_
#define HOST_WINDOW_CONTROLS_CONTROL_FOCUS_H_

#include <QObject>
#include <QVector>

class QFocusFrame;
class QMainWindow;
class QToolBar;
class QWidget;

namespace tavi {

// The way of the keys from the guest's view, where all of them are the guest's, to the controls of the window and back:
// Take leads to the first control, Tab walks them all but the view, Escape leads back to the view.
//
// Main thread.
class ControlFocus : public QObject {
  Q_OBJECT

 public:
  // Both outlive it. Tool bars and docks that the window has later on are looked after as well.
  ControlFocus(QMainWindow* window, QWidget* view);

  // Tab goes through the buttons of these bars in this order.
  void SetBars(const QVector<QToolBar*>& bars);

  // Gives the keys to the first control. A dialog or a menu that is open keeps them.
  void Take();

 protected:
  // Key events that no control wants come by here.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void NameParts();
  void Mark(QWidget* focused);

  QMainWindow* window_;
  QWidget* view_;
  QVector<QToolBar*> bars_;
  QFocusFrame* frame_;       // around a list that has the keys
  bool is_leaving_ = false;  // Escape is down, and is nobody else's
};

// Has a control answer to Tab, while a click at it leaves the keys where they are.
void ReachByTab(QWidget* control);
// The same of all buttons of a tool bar; what its widgets are called is what is read of them.
void ReachByTab(QToolBar* bar);

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_CONTROL_FOCUS_H_
