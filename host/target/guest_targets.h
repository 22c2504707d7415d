// Sends a host's lines to guests.
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

// Sends lines to any number of targets, independently: one that lags, refuses or disconnects does not affect the
// others, and no call waits for one.
//
// A target gets a stream of whole lines in the order of the calls of Send, except that it never gets the rest of a
// gesture whose beginning it missed. While a target is disconnected or lags, its lines are dropped. When it is back,
// what it still holds down is released first, and a contact, key or button that the host holds at that time stays up
// there until it is pressed again.
//
// Threads: main, except Send. Signals are emitted on the main thread, possibly during a call of this class.
class GuestTargets : public QObject {
  Q_OBJECT

 public:
  // The queue of one target, in addition to the system's buffers (some kB). If it overflows, it is dropped, and the
  // target counts as lagging until it has read the release of what it holds down.
  static constexpr int kMostWaitingBytes = 128 * 1024;
  // A longer line goes to no target, because guests truncate it; Message reports it.
  static constexpr int kMostLineBytes = 64 * 1024;
  // How long Close and Switch give targets to read their last lines, in milliseconds; and how long commands then get to
  // exit.
  static constexpr int kFlushMs = 500;
  static constexpr int kEndMs = 1000;

  explicit GuestTargets(QObject* parent = nullptr);
  // Like Close.
  ~GuestTargets() override;

  // The guest's touch surface, whose size kernel devices need. Set it before the first Add.
  void SetSurface(const QSize& surface) { surface_ = surface; }

  // Starts to connect: commands and local sockets are usually connected when it returns. Adding the same target again
  // adds another one.
  void Add(const TargetAddress& address);

  // A line in the form of the library's send functions: `length` counts the newline of an event line and the NUL of a
  // text line. Any thread; lines keep the order of the calls. Lines of the main thread are sent during the call, as far
  // as the target accepts them; those of other threads as soon as the main thread gets to them.
  void Send(const char* data, int length);

  // Releases what each target holds down, including gamepads, which a reset of the library does not release. What the
  // host still holds stays up there until it is pressed again.
  void LiftAll();

  // Releases what each target holds down, waits until the lines were read, at most kFlushMs for all targets, ends
  // commands, at most kEndMs for all, and removes the targets. Does nothing without targets; later lines go nowhere.
  void Close();

  // Targets are numbered from 0 in the order in which they were added.
  int Count() const { return static_cast<int>(targets_.size()); }
  TargetStatus StatusOf(int target) const;
  // Whether each target has been connected or has failed once, or is off.
  bool HaveAllAnswered() const;

  // Off: releases what it holds down, and ends the connection once the lines have been read, after kFlushMs at the
  // latest. On: connects at once.
  void Switch(int target, bool on);
  // Retries a failed or disconnected target now instead of after the delay: 1 s, doubled after each further failure, at
  // most 30 s; 1 s again after a connection of 10 s. A connected target is disconnected, released, and connected again.
  void TryAgain(int target);

 Q_SIGNALS:
  // The target's state has changed. Poll its line rate and queue size as often as you like.
  void Changed(int target);
  // For display: what happened to a target, and what a command wrote to its standard output and error, line by line.
  void Message(const QString& text, bool is_problem);

 private:
  void TakeInbox();
  std::vector<QByteArray> TakeLines();
  void Distribute(const QByteArray& bytes);
  void WaitUntilTaken();

  QSize surface_{1280, 720};
  std::vector<std::unique_ptr<GuestTarget>> targets_;
  std::unique_ptr<HeldInput> sent_;  // what the host holds down, regardless of what targets got
  bool is_distributing_ = false;
  std::atomic<bool> has_targets_{false};
  std::mutex inbox_lock_;
  std::vector<QByteArray> inbox_;  // guarded by inbox_lock_; lines that no target got yet
};

}  // namespace tavi

#endif  // HOST_TARGET_GUEST_TARGETS_H_
