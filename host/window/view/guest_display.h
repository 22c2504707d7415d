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

// The guest's display in the window: its size, what it is turned by, how its pixels are counted, and a picture in place
// of its screen. Has the menu that chooses them, and the label that tells them.
//
// Main thread.
class GuestDisplay : public QObject {
  Q_OBJECT

 public:
  // `view` stands in `frame`, `replay_frame` has the display of replays; all of them outlive the display. Dialogs are
  // `window`'s.
  GuestDisplay(GuestView* view, GuestFrame* frame, GuestFrame* replay_frame, QWidget* window);

  // In pixels. An empty size: as large as the view, whatever that is.
  void SetSize(const QSize& size);
  // 0, 90, 180 or 270 degrees. The size is of the screen before it is turned.
  void SetRotation(int degrees);
  // How many pixels the host counts for one of the guest, for whoever wants to see which places agree all the same.
  void SetPixelRatio(double ratio);
  // A picture in place of the guest's screen; an empty name for none. Returns what is wrong, or nothing.
  QString SetBackground(const QString& file);

  bool FollowsView() const { return follows_view_; }
  // Empty without one.
  QString BackgroundFile() const { return background_file_; }

  // The window's parts.
  GuestMenu* Menu() const { return menu_; }
  QLabel* Label() const { return label_; }

 Q_SIGNALS:
  // For the person; `is_problem`: something went wrong.
  void Message(const QString& text, bool is_problem);
  // A dialog is gone; the guest should have the keys again.
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
