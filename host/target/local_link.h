#ifndef HOST_TARGET_LOCAL_LINK_H_
#define HOST_TARGET_LOCAL_LINK_H_

#include <QLocalSocket>

#include "host/target/socket_link.h"

namespace tavi {

// A connection to the program that listens on a socket file.
class LocalLink : public SocketLink<QLocalSocket> {
 public:
  explicit LocalLink(QString path);

  void Open() override;
  void Finish(int limit_ms) override;
  void WaitForEnd(int limit_ms) override;

 protected:
  QString Problem() const override;

 private:
  const QString path_;
};

}  // namespace tavi

#endif  // HOST_TARGET_LOCAL_LINK_H_
