#ifndef HOST_TARGET_SOCKET_LINK_H_
#define HOST_TARGET_SOCKET_LINK_H_

#include <QDeadlineTimer>
#include <QTimer>

#include "host/target/target_link.h"

namespace tavi {

// What links over sockets have in common. `Socket` is QLocalSocket or QTcpSocket, which are alike without a common
// base. What the other end writes is passed over: there is no answer in the protocol, and bytes that nobody read would
// make the system throw away the last lines with the connection.
template <typename Socket>
class SocketLink : public TargetLink {
 public:
  SocketLink() {
    connect(&socket_, &Socket::readyRead, this, [this] { socket_.readAll(); });
    connect(&socket_, &Socket::bytesWritten, this, [this] {
      if (HasRoom()) Q_EMIT RoomMade();
    });
    connect(&socket_, &Socket::disconnected, this, [this] { End(QStringLiteral("it went away")); });
    connect(&socket_, &Socket::errorOccurred, this, [this] { End(Problem()); });
    cut_.setSingleShot(true);
    connect(&cut_, &QTimer::timeout, this, [this] {
      End(QStringLiteral("it took no more lines"));
      socket_.abort();
    });
  }
  ~SocketLink() override { socket_.disconnect(this); }

  void Write(const QByteArray& line) override {
    socket_.write(line);
    socket_.flush();
  }
  bool HasRoom() const override { return !has_ended_ && socket_.bytesToWrite() == 0; }
  qint64 WaitingBytes() const override { return socket_.bytesToWrite(); }
  bool WaitForRoom(int limit_ms) override {
    const QDeadlineTimer limit(limit_ms);
    while (!has_ended_ && socket_.bytesToWrite() > 0 && !limit.hasExpired()) {
      if (!socket_.waitForBytesWritten(static_cast<int>(limit.remainingTime()))) break;
    }
    return HasRoom();
  }

 protected:
  // Why it ended, from the socket's error.
  virtual QString Problem() const = 0;

  void CutAfter(int limit_ms) { cut_.start(limit_ms); }

  // A socket tells its end in two ways.
  void End(const QString& reason) {
    if (has_ended_) return;
    has_ended_ = true;
    Q_EMIT Ended(reason);
  }

  Socket socket_;

 private:
  QTimer cut_;
  bool has_ended_ = false;
};

}  // namespace tavi

#endif  // HOST_TARGET_SOCKET_LINK_H_
