#ifndef HOST_TARGET_TARGET_LINK_H_
#define HOST_TARGET_TARGET_LINK_H_

#include <QByteArray>
#include <QObject>
#include <QString>

namespace tavi {

// One connection to a target, from the attempt to its end. It holds at most one line that was not accepted yet.
//
// Main thread. Signals may be emitted during any call.
class TargetLink : public QObject {
  Q_OBJECT

 public:
  // Starts to connect: Connected or Ended follows.
  virtual void Open() = 0;

  // Sends a line; only while HasRoom.
  virtual void Write(const QByteArray& line) = 0;
  // Whether all sent lines were accepted.
  virtual bool HasRoom() const = 0;
  // Bytes that were sent but not accepted.
  virtual qint64 WaitingBytes() const = 0;
  // Waits until everything is accepted; false if `limit_ms` have passed, or if the link has ended.
  virtual bool WaitForRoom(int limit_ms) = 0;

  // Ends the connection: no more lines follow, and what was not accepted by now is dropped, so that the target sees the
  // end of the stream. Ended follows, after `limit_ms` at the latest: what does not end by itself is terminated.
  virtual void Finish(int limit_ms) = 0;
  // After Finish, waits for the end.
  virtual void WaitForEnd(int limit_ms) = 0;

 Q_SIGNALS:
  void Connected();
  // The target accepts more.
  void RoomMade();
  // Nothing follows after it. `reason` is for display, with the target as its subject: "refused the connection".
  void Ended(const QString& reason);
  // A line that the target wrote.
  void Said(const QString& line);
};

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_LINK_H_
