#ifndef HOST_WINDOW_VIEW_GUEST_FRAME_H_
#define HOST_WINDOW_VIEW_GUEST_FRAME_H_

#include <QSize>
#include <QWidget>

namespace tavi {

// Keeps the guest view as large as possible in the aspect ratio of the guest's display, so that nothing is distorted.
class GuestFrame : public QWidget {
  Q_OBJECT

 public:
  // `view` becomes the frame's child.
  explicit GuestFrame(QWidget* view, QWidget* parent = nullptr);

  // The aspect ratio to keep; an empty size makes the view fill the frame.
  void SetShape(const QSize& shape);

 Q_SIGNALS:
  // The view was resized.
  void ViewResized();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  QWidget* view_;
  QSize shape_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_FRAME_H_
