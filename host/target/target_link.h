#ifndef HOST_TARGET_TARGET_LINK_H_
#define HOST_TARGET_TARGET_LINK_H_

#include <QByteArray>
#include <QObject>
#include <QString>

namespace tavi {

// One connection to a target, from the first try to its end. It keeps at most one line that was not taken yet.
//
// Main thread. Signals may come from inside of any call.
class TargetLink : public QObject {
  Q_OBJECT

 public:
  // Begins to connect: Connected or Ended follow.
  virtual void Open() = 0;

  // Hands a line over; only while HasRoom.
  virtual void Write(const QByteArray& line) = 0;
  // Whether all that was handed over was taken.
  virtual bool HasRoom() const = 0;
  // Bytes that were handed over and not taken.
  virtual qint64 WaitingBytes() const = 0;
  // Waits until all that was handed over is taken; false when `limit_ms` have passed, or when the link has ended.
  virtual bool WaitForRoom(int limit_ms) = 0;

  // No more lines come, and what was not taken by now is dropped: the target sees the end of the stream. Ended follows,
  // after `limit_ms` at the latest: what does not end by itself is made to.
  virtual void Finish(int limit_ms) = 0;
  // Waits for that, after Finish.
  virtual void WaitForEnd(int limit_ms) = 0;

 Q_SIGNALS:
  void Connected();
  // The target takes more.
  void RoomMade();
  // Nothing comes after that. `reason` is for people, and tells what the target did: "refused the connection".
  void Ended(const QString& reason);
  // A line that the target wrote.
  void Said(const QString& line);
};

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_LINK_H_
