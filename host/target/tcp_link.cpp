#include "host/target/tcp_link.h"

#include <QHostAddress>
#include <QNetworkProxy>

namespace tavi {

namespace {

// What is in the system's buffer cannot be dropped, and is late when it is read: it holds some hundred lines.
constexpr int kSystemBytes = 16 * 1024;

}  // namespace

TcpLink::TcpLink(QString host, quint16 port, bool may_be_remote)
    : host_(std::move(host)), port_(port), may_be_remote_(may_be_remote) {
  connect(&socket_, &QTcpSocket::connected, this, &TcpLink::TakeConnection);
}

void TcpLink::Open() {
  socket_.setProxy(QNetworkProxy::NoProxy);
  socket_.connectToHost(host_, port_);
}

void TcpLink::TakeConnection() {
  if (!may_be_remote_ && !socket_.peerAddress().isLoopback()) {
    End(QStringLiteral("it is another machine, which needs --allow-remote"));
    return socket_.abort();
  }
  socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
  socket_.setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, kSystemBytes);
  Q_EMIT Connected();
}

void TcpLink::Finish(int limit_ms) {
  CutAfter(limit_ms);
  socket_.disconnectFromHost();
}

void TcpLink::WaitForEnd(int limit_ms) {
  if (socket_.state() != QAbstractSocket::UnconnectedState) socket_.waitForDisconnected(limit_ms);
}

QString TcpLink::Problem() const {
  switch (socket_.error()) {
    case QAbstractSocket::RemoteHostClosedError: return QStringLiteral("it disconnected");
    case QAbstractSocket::ConnectionRefusedError: return QStringLiteral("it refused the connection");
    case QAbstractSocket::HostNotFoundError: return QStringLiteral("there is no machine with that name");
    default: return socket_.errorString();
  }
}

}  // namespace tavi
