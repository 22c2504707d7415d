#ifndef HOST_WINDOW_LOOK_MENU_H_
#define HOST_WINDOW_LOOK_MENU_H_

#include <QMenu>

namespace tavi {

// Chooses the window's colours: those of the desktop, light, or dark.
class LookMenu : public QMenu {
  Q_OBJECT

 public:
  explicit LookMenu(QWidget* parent);
};

}  // namespace tavi

#endif  // HOST_WINDOW_LOOK_MENU_H_
