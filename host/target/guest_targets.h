// Where a host's lines go when somebody is to play with them.
//
//   const ParsedTarget parsed = ParseTarget(text, false);
//   if (!parsed.problem.isEmpty()) return Fail(parsed.problem);
//   targets->Add(parsed.address);
//   ...
//   static void SendEvent(const char* data, int length) { targets->Send(data, length); }  // for the library
//   static void SendText(const char* data, int length) { targets->Send(data, length); }
//   ...
//   targets->Close();  // on every way out, while the application object is there
#ifndef HOST_TARGET_GUEST_TARGETS_H_
#define HOST_TARGET_GUEST_TARGETS_H_

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include <QByteArray>
#include <QObject>
#include <QSize>
#include <QString>

#include "host/target/target_address.h"
#include "host/target/target_status.h"

namespace tavi {

class GuestTarget;
class HeldInput;

// Carries lines to any number of targets, each on its own: one that lags, refuses or ends takes nothing from the
// others, and none is ever waited for.
//
// What a target gets is a stream of whole lines in the order of the calls of Send, with one exception, so that it never
// plays the rest of a gesture whose beginning it missed. While a target is not connected, or lags, lines pass it by.
// When it is back, what it was left with is lifted first; and a finger, key or button that is down by then stays
// up there until it is pressed anew.
//
// Threads: main, but for Send. Signals come on the main thread, also from inside of a call of this class.
class GuestTargets : public QObject {
  Q_OBJECT

 public:
  // Of one target, beside what the system keeps (some kB). When more would wait, all that waits is dropped, and the
  // target counts as lagging until it has taken the lift of what it has down.
  static constexpr int kMostWaitingBytes = 128 * 1024;
  // A longer one goes to no target, since guests cut it; Message tells.
  static constexpr int kMostLineBytes = 64 * 1024;
  // What Close and Switch give targets to take their last lines, in milliseconds; and commands to end after that.
  static constexpr int kFlushMs = 500;
  static constexpr int kEndMs = 1000;

  explicit GuestTargets(QObject* parent = nullptr);
  // As Close.
  ~GuestTargets() override;

  // The touch surface of the guest, of which devices of the kernel have to know. To be set before the first Add.
  void SetSurface(const QSize& surface) { surface_ = surface; }

  // Begins to connect: commands and sockets of this machine are there when it returns, as a rule. The same target again
  // is another one.
  void Add(const TargetAddress& address);

  // A line as the library's send functions get it: `length` counts the newline of an event line, the NUL of a text
  // line. Any thread; the order of lines is that of the calls. Lines of the main thread leave inside the call, as far
  // as the target takes them; those of other threads as soon as the main thread comes to it.
  void Send(const char* data, int length);

  // Lifts what each target has down, gamepads included, which a reset of the library leaves alone. What is still held
  // stays up there until it is pressed anew.
  void LiftAll();

  // Lifts what each target has down, waits until it was taken, at most kFlushMs for all of them, has commands end, at
  // most kEndMs for all, and forgets the targets. Without targets it does nothing; later lines go nowhere.
  void Close();

  // Targets are numbered from 0 in the order in which they were added.
  int Count() const { return static_cast<int>(targets_.size()); }
  TargetStatus StatusOf(int target) const;
  // Whether each target has been reached or has failed once, or is off.
  bool HaveAllAnswered() const;

  // Off: lifts what it has down, and ends the connection when that was taken, after kFlushMs at the latest. On: tries
  // it at once.
  void Switch(int target, bool on);
  // Tries a target that failed or ended at once, in place of after the pause: 1 s, twice as long after each further
  // failure, at most 30 s; 1 s again after a connection of 10 s. One that is connected is ended, lifted, and tried
  // anew.
  void TryAgain(int target);

 Q_SIGNALS:
  // Its state is another one. Lines a second and waiting bytes are asked for as one likes.
  void Changed(int target);
  // For people: what has become of a target, what a command wrote on its standard output and error, line by line.
  void Message(const QString& text, bool is_problem);

 private:
  void TakeInbox();
  std::vector<QByteArray> TakeLines();
  void Distribute(const QByteArray& bytes);
  void WaitUntilTaken();

  QSize surface_{1280, 720};
  std::vector<std::unique_ptr<GuestTarget>> targets_;
  std::unique_ptr<HeldInput> sent_;  // what the host has down, whatever targets were told
  bool is_distributing_ = false;
  std::atomic<bool> has_targets_{false};
  std::mutex inbox_lock_;
  std::vector<QByteArray> inbox_;  // guarded by inbox_lock_; lines that no target was offered yet
};

}  // namespace tavi

#endif  // HOST_TARGET_GUEST_TARGETS_H_
