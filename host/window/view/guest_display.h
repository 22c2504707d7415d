#ifndef HOST_WINDOW_VIEW_GUEST_DISPLAY_H_
#define HOST_WINDOW_VIEW_GUEST_DISPLAY_H_

#include <QObject>
#include <QSize>
#include <QString>

#include "host/window/view/background_picture.h"

class QLabel;
class QWidget;

namespace tavi {

class GuestFrame;
class GuestMenu;
class GuestView;

// The guest's display in the window: its size, its rotation, its pixel ratio, and a picture in place of its screen.
// Provides the menu that sets them, and the label that shows them.
//
// Main thread.
class GuestDisplay : public QObject {
  Q_OBJECT

 public:
  // `view` is the child of `frame`; `replay_frame` holds the display of replays. All of them outlive this object.
  // Dialogs belong to `window`.
  GuestDisplay(GuestView* view, GuestFrame* frame, GuestFrame* replay_frame, QWidget* window);

  // In pixels. An empty size makes the display as large as the view.
  void SetSize(const QSize& size);
  // 0, 90, 180 or 270 degrees. The size is that of the unrotated screen.
  void SetRotation(int degrees);
  // How many pixels the host reports for one of the guest. It is for developers who check which positions are still
  // correct.
  void SetPixelRatio(double ratio);
  // A picture in place of the guest's screen; an empty name removes it. Returns the error, or an empty string.
  QString SetBackground(const QString& file);

  bool FollowsView() const { return follows_view_; }
  // Empty without one.
  QString BackgroundFile() const { return background_file_; }

  // Owned by the window.
  GuestMenu* Menu() const { return menu_; }
  QLabel* Label() const { return label_; }

 Q_SIGNALS:
  // A message for the user; `is_problem`: an error.
  void Message(const QString& text, bool is_problem);
  // A dialog was closed; the focus should return to the guest.
  void DialogClosed();

 private:
  void OpenBackground();
  void Shape();
  void TakeViewSize();
  void ShowSizes();
  void TellShapeOfBackground();

  GuestView* const view_;
  GuestFrame* const frame_;
  GuestFrame* const replay_frame_;
  QWidget* const window_;
  GuestMenu* menu_;
  QLabel* label_;
  BackgroundPicture background_;
  QString background_file_;
  bool follows_view_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GUEST_DISPLAY_H_
