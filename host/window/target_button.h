#ifndef HOST_WINDOW_TARGET_BUTTON_H_
#define HOST_WINDOW_TARGET_BUTTON_H_

#include <QTimer>
#include <QToolButton>

#include "host/target/target_address.h"

class QMenu;

namespace tavi {

class GuestTargets;

// Shows the state of this window's targets, with a menu to turn each off and on and to retry it; hidden while there are
// none. Clicking it leaves the focus with the guest; Tab reaches it.
//
// Main thread.
class TargetButton : public QToolButton {
  Q_OBJECT

 public:
  // `targets` is not owned, and outlives the button.
  explicit TargetButton(GuestTargets* targets, QWidget* parent = nullptr);

  void Add(const TargetAddress& address);

 Q_SIGNALS:
  // A message for the user; `is_problem`: an error.
  void Message(const QString& text, bool is_problem);

 private:
  void ShowStates();
  void FillMenu();
  void AddEntries(int target);

  GuestTargets* targets_;
  QMenu* menu_;
  QTimer refresh_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_TARGET_BUTTON_H_
