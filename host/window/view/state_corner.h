#ifndef HOST_WINDOW_VIEW_STATE_CORNER_H_
#define HOST_WINDOW_VIEW_STATE_CORNER_H_

#include <QVector>
#include <QWidget>

#include "host/window/view/window_state.h"

namespace tavi {

// Shows the window's state in the upper right corner of a view, over its content. It takes no input.
class StateCorner : public QWidget {
  Q_OBJECT

 public:
  // Neither is owned; the corner becomes the view's child.
  StateCorner(const WindowState* state, QWidget* view);

  // The texts of the labels.
  QStringList Texts() const;

 Q_SIGNALS:
  // It now covers another part of the view.
  void Placed(const QRect& place);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Take();
  void Place();

  const WindowState* state_;
  QVector<StateWord> words_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_STATE_CORNER_H_
