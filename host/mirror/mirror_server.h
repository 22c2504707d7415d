#ifndef HOST_MIRROR_MIRROR_SERVER_H_
#define HOST_MIRROR_MIRROR_SERVER_H_

#include <memory>
#include <vector>

#include <QObject>
#include <QString>

#include "host/mirror/mirror_listener.h"

class QLocalSocket;

namespace tavi {

// Accepts the lines of other instances and sends them to this one's guest unchanged: positions are touch coordinates,
// so the guests should have the same size. A sender that violates the protocol is disconnected.
//
// Main thread.
class MirrorServer : public QObject {
  Q_OBJECT

 public:
  // Lines go to `display` of the guest.
  explicit MirrorServer(int display);
  ~MirrorServer() override;

  // Listens under a name until destruction. Returns the error, or an empty string.
  QString Listen(const QString& name);

 Q_SIGNALS:
  // The number of instances that send to this one.
  void SourcesChanged(int count);

 private:
  class Source;

  void TakeConnection(QLocalSocket* socket);
  void Forget(Source* source);

  const int display_;
  MirrorListener listener_;
  std::vector<std::unique_ptr<Source>> sources_;
};

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_SERVER_H_
