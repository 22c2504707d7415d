#ifndef HOST_WINDOW_RECORDS_REPLAY_DOCK_H_
#define HOST_WINDOW_RECORDS_REPLAY_DOCK_H_

#include <QDockWidget>

namespace tavi {

class GuestFrame;
class GuestScreen;

// A second display of the guest, which replays have for themselves while it is shown.
//
// Main thread.
class ReplayDock : public QDockWidget {
  Q_OBJECT

 public:
  // `player` shows the display that is played on, and outlives the dock.
  ReplayDock(const GuestScreen* player, QWidget* parent);

  GuestFrame* Frame() const { return frame_; }
  // Shows the display and has replays go there, or on the player's. What a replay has down on the one that it leaves is
  // lifted there; on the other it comes down again with the next line about it.
  void SetInUse(bool in_use);

 Q_SIGNALS:
  // By its own button.
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
