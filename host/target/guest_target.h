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

// One target: its connection, made again when it ends, and the lines that wait for it.
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

  // `name` is for people.
  GuestTarget(QString name, LinkMaker make_link);
  ~GuestTarget() override;

  // Begins to connect. Commands and sockets of this machine are there when it returns, as a rule.
  void Connect();

  // A line to be told; `before` is what the host has down without it.
  void Offer(const OutgoingLine& line, const HeldInput& before);
  // Lifts what it has down.
  void Lift();

  void Switch(bool on);
  void TryAgain();

  // For the end of all. The first waits until the lines that wait were taken, at most so long, and tells whether any do
  // still; the second ends the connection, and the third waits for its end.
  bool WaitUntilTaken(int limit_ms);
  void Leave();
  void WaitForEnd(int limit_ms);

  TargetStatus Status() const;
  bool HasAnswered() const { return has_answered_ || state_ == State::kOff; }

 Q_SIGNALS:
  void Changed();
  void Message(const QString& text, bool is_problem);

 private:
  // deleteLater, since a link may be in the middle of a signal.
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
  std::unique_ptr<TargetLink, DeleteLater> link_;  // null: not even tried
  std::unique_ptr<TargetLink, DeleteLater> left_;  // the one before, on its way to its end
  State state_ = State::kConnecting;
  QString reason_;
  bool has_answered_ = false;
  bool is_pumping_ = false;
  std::deque<QByteArray> waiting_;
  int waiting_bytes_ = 0;
  int passed_by_ = 0;  // lines, since it lags
  TargetGestures gestures_;
  QTimer retry_;
  QTimer leave_;  // for the last lines of one that was switched off
  RetryPause pause_;
  QElapsedTimer clock_;
  qint64 connected_at_ms_ = 0;
  mutable LineRate rate_;
};

}  // namespace tavi

#endif  // HOST_TARGET_GUEST_TARGET_H_
