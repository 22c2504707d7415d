#ifndef HOST_WINDOW_RECORDS_REPLAY_DOCK_H_
#define HOST_WINDOW_RECORDS_REPLAY_DOCK_H_

#include <QDockWidget>

namespace tavi {

class GuestFrame;
class GuestScreen;

// A second display of the guest. While it is shown, replays play on it.
//
// Main thread.
class ReplayDock : public QDockWidget {
  Q_OBJECT

 public:
  // `player` shows the display that you play on, and outlives the dock.
  ReplayDock(const GuestScreen* player, QWidget* parent);

  GuestFrame* Frame() const { return frame_; }
  // Shows the display and sends replays to it, or hides it and sends them to the player's. What a replay holds down on
  // the display that it leaves is released there; on the other it is pressed again by the next line about it.
  void SetInUse(bool in_use);

 Q_SIGNALS:
  // With the dock's own button.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void LiftOnOwn() const;
  void LiftOnPlayers() const;

  const GuestScreen* player_;
  GuestScreen* own_;
  GuestFrame* frame_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_RECORDS_REPLAY_DOCK_H_
