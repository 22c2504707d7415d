#ifndef HOST_TARGET_GUEST_TARGET_H_
#define HOST_TARGET_GUEST_TARGET_H_

#include <deque>
#include <functional>
#include <memory>

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "host/target/line_rate.h"
#include "host/target/retry_pause.h"
#include "host/target/target_gestures.h"
#include "host/target/target_link.h"
#include "host/target/target_status.h"

namespace tavi {

// One target: its connection, which is made again when it ends, and its queue of lines.
//
//   connecting --> connected <--> lagging          off: from anywhere, and back to connecting
//      |  ^            |            |
//      v  | pause      v            v
//     failed          ended, and after a pause connecting
//
// Main thread.
class GuestTarget : public QObject {
  Q_OBJECT

 public:
  using LinkMaker = std::function<std::unique_ptr<TargetLink>()>;

  // `name` is for display.
  GuestTarget(QString name, LinkMaker make_link);
  ~GuestTarget() override;

  // Starts to connect. Commands and local sockets are usually connected when it returns.
  void Connect();

  // A line for the target; `before` is what the host held down before it.
  void Offer(const OutgoingLine& line, const HeldInput& before);
  // Releases what the target holds down.
  void Lift();

  void Switch(bool on);
  void TryAgain();

  // For the end of all targets. The first waits at most this long until the queued lines have been read, and returns
  // whether any are left; the second ends the connection, and the third waits for its end.
  bool WaitUntilTaken(int limit_ms);
  void Leave();
  void WaitForEnd(int limit_ms);

  TargetStatus Status() const;
  bool HasAnswered() const { return has_answered_ || state_ == State::kOff; }

 Q_SIGNALS:
  void Changed();
  void Message(const QString& text, bool is_problem);

 private:
  // deleteLater, because a link may be emitting a signal.
  struct DeleteLater {
    void operator()(TargetLink* link) const;
  };
  using State = TargetStatus::State;

  void TakeConnection();
  void TakeEnd(const QString& reason);
  void SetState(State state);
  bool IsReached() const { return state_ == State::kConnected || state_ == State::kLagging; }
  void Enqueue(const QVector<QByteArray>& lines);
  void Pump();
  void TakeEmptiness();
  void DropWaiting();
  void StartLagging();

  const QString name_;
  const LinkMaker make_link_;
  std::unique_ptr<TargetLink, DeleteLater> link_;  // null: not tried yet
  std::unique_ptr<TargetLink, DeleteLater> left_;  // the previous connection, which is ending
  State state_ = State::kConnecting;
  QString reason_;
  bool has_answered_ = false;
  bool is_pumping_ = false;
  std::deque<QByteArray> waiting_;
  int waiting_bytes_ = 0;
  int passed_by_ = 0;  // the number of lines since it lags
  TargetGestures gestures_;
  QTimer retry_;
  QTimer leave_;  // for the last lines of a target that was switched off
  RetryPause pause_;
  QElapsedTimer clock_;
  qint64 connected_at_ms_ = 0;
  mutable LineRate rate_;
};

}  // namespace tavi

#endif  // HOST_TARGET_GUEST_TARGET_H_
