#ifndef HOST_TARGET_SOCKET_LINK_H_
#define HOST_TARGET_SOCKET_LINK_H_

#include <QDeadlineTimer>
#include <QTimer>

#include "host/target/target_link.h"

namespace tavi {

// The common part of links over sockets. `Socket` is QLocalSocket or QTcpSocket, which have the same functions without
// a common base class. What the other end writes is discarded: the protocol has no answers, and with unread bytes the
// system would discard the last lines when the connection is closed.
template <typename Socket>
class SocketLink : public TargetLink {
 public:
  SocketLink() {
    connect(&socket_, &Socket::readyRead, this, [this] { socket_.readAll(); });
    connect(&socket_, &Socket::bytesWritten, this, [this] {
      if (HasRoom()) Q_EMIT RoomMade();
    });
    connect(&socket_, &Socket::disconnected, this, [this] { End(QStringLiteral("it disconnected")); });
    connect(&socket_, &Socket::errorOccurred, this, [this] { End(Problem()); });
    cut_.setSingleShot(true);
    connect(&cut_, &QTimer::timeout, this, [this] {
      End(QStringLiteral("it stopped reading lines"));
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
  // Why the connection ended, from the socket's error.
  virtual QString Problem() const = 0;

  void CutAfter(int limit_ms) { cut_.start(limit_ms); }

  // A socket signals its end in two ways.
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
