#ifndef HOST_WINDOW_VIEW_GUEST_MENU_H_
#define HOST_WINDOW_VIEW_GUEST_MENU_H_

#include <QMenu>
#include <QSize>
#include <QString>

class QActionGroup;

namespace tavi {

// "1280 × 720"
QString SizeText(const QSize& size);

// The choices for the guest's display. An empty size means as large as the view.
class GuestMenu : public QMenu {
  Q_OBJECT

 public:
  explicit GuestMenu(QWidget* parent = nullptr);

  // Each marks the current value; a value that is not in the list marks nothing.
  void MarkSize(const QSize& size);
  void MarkRotation(int degrees);
  void MarkPixelRatio(double ratio);
  void MarkBackground(bool has_one);

 Q_SIGNALS:
  void SizeChosen(const QSize& size);
  void RotationChosen(int degrees);
  void PixelRatioChosen(double ratio);
  void BackgroundWanted();
  void BackgroundDropped();

 private:
  QActionGroup* sizes_;
  QActionGroup* rotations_;
  QActionGroup* pixel_ratios_;
  QAction* no_background_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_MENU_H_
