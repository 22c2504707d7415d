#ifndef HOST_TARGET_TCP_LINK_H_
#define HOST_TARGET_TCP_LINK_H_

#include <QTcpSocket>

#include "host/target/socket_link.h"

namespace tavi {

// A connection over TCP.
class TcpLink : public SocketLink<QTcpSocket> {
 public:
  // Unless `may_be_remote`, a name that resolves to another machine is disconnected before it gets a line.
  TcpLink(QString host, quint16 port, bool may_be_remote);

  void Open() override;
  void Finish(int limit_ms) override;
  void WaitForEnd(int limit_ms) override;

 protected:
  QString Problem() const override;

 private:
  void TakeConnection();

  const QString host_;
  const quint16 port_;
  const bool may_be_remote_;
};

}  // namespace tavi

#endif  // HOST_TARGET_TCP_LINK_H_
