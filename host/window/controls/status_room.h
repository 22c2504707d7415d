#ifndef HOST_WINDOW_CONTROLS_STATUS_ROOM_H_
#define HOST_WINDOW_CONTROLS_STATUS_ROOM_H_

#include <QObject>
#include <QVector>

class QLabel;
class QStatusBar;

namespace tavi {

// Gives the text at the left of a status bar the room that it needs: in a narrow window the labels at the right give
// way, because a message matters more while it is shown.
//
// Main thread.
class StatusRoom : public QObject {
  Q_OBJECT

 public:
  // `usual` is shown at the left while there is no message. The first of `waiting` are the first to give way.
  StatusRoom(QStatusBar* bar, QLabel* usual, const QVector<QLabel*>& waiting);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Arrange();

  QStatusBar* bar_;
  QLabel* usual_;
  QVector<QLabel*> waiting_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_STATUS_ROOM_H_
