#ifndef HOST_WINDOW_TARGET_BUTTON_H_
#define HOST_WINDOW_TARGET_BUTTON_H_

#include <QTimer>
#include <QToolButton>

#include "host/target/target_address.h"

class QMenu;

namespace tavi {

class GuestTargets;

// Tells how the targets of this window's lines are, and has a menu to switch each off and on and to try it again;
// hidden while there are none. A click leaves the keys the guest's; Tab comes by.
//
// Main thread.
class TargetButton : public QToolButton {
  Q_OBJECT

 public:
  // `targets` are not owned, and outlive it.
  explicit TargetButton(GuestTargets* targets, QWidget* parent = nullptr);

  void Add(const TargetAddress& address);

 Q_SIGNALS:
  // For the person; `is_problem`: something went wrong.
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
