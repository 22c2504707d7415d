#ifndef HOST_WINDOW_CONTROLS_CONTROL_FOCUS_H_
#define HOST_WINDOW_CONTROLS_CONTROL_FOCUS_H_

#include <QObject>
#include <QVector>

class QFocusFrame;
class QMainWindow;
class QToolBar;
class QWidget;

namespace tavi {

// Moves the focus between the guest view, where all keys go to the guest, and the window's controls: Take focuses the
// first control, Tab visits all controls except the view, Escape returns to the view.
//
// Main thread.
class ControlFocus : public QObject {
  Q_OBJECT

 public:
  // Both outlive it. Tool bars and docks that the window creates later are included.
  ControlFocus(QMainWindow* window, QWidget* view);

  // Tab visits the buttons of these bars in this order.
  void SetBars(const QVector<QToolBar*>& bars);

  // Focuses the first control. An open dialog or menu keeps the focus.
  void Take();

 protected:
  // Receives the key events that no control handles.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void NameParts();
  void Mark(QWidget* focused);

  QMainWindow* window_;
  QWidget* view_;
  QVector<QToolBar*> bars_;
  QFocusFrame* frame_;       // around the list that has the focus
  bool is_leaving_ = false;  // Escape is down and belongs to no control
};

// Makes a control reachable by Tab; a click on it leaves the focus where it is.
void ReachByTab(QWidget* control);
// The same for all buttons of a tool bar. Screen readers read their accessible names.
void ReachByTab(QToolBar* bar);

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_CONTROL_FOCUS_H_
