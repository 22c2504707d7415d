#include "host/target/local_link.h"

namespace tavi {

LocalLink::LocalLink(QString path) : path_(std::move(path)) {
  connect(&socket_, &QLocalSocket::connected, this, &LocalLink::Connected);
}

void LocalLink::Open() { socket_.connectToServer(path_); }

void LocalLink::Finish(int limit_ms) {
  CutAfter(limit_ms);
  socket_.disconnectFromServer();
}

void LocalLink::WaitForEnd(int limit_ms) {
  if (socket_.state() != QLocalSocket::UnconnectedState) socket_.waitForDisconnected(limit_ms);
}

QString LocalLink::Problem() const {
  switch (socket_.error()) {
    case QLocalSocket::PeerClosedError: return QStringLiteral("it disconnected");
    case QLocalSocket::ServerNotFoundError: return QStringLiteral("there is no such socket");
    case QLocalSocket::ConnectionRefusedError: return QStringLiteral("nobody listens there");
    case QLocalSocket::SocketAccessError: return QStringLiteral("this user has no access");
    default: return socket_.errorString();
  }
}

}  // namespace tavi
