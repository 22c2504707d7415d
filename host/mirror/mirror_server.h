#ifndef HOST_MIRROR_MIRROR_SERVER_H_
#define HOST_MIRROR_MIRROR_SERVER_H_

#include <memory>
#include <vector>

#include <QObject>
#include <QString>

#include "host/mirror/mirror_listener.h"

class QLocalSocket;

namespace tavi {

// Takes the lines of other instances and gives them to this one's guest, as they are: places are touch coordinates, so
// guests of one size are meant. Who sends what no instance would is shut out.
//
// Main thread.
class MirrorServer : public QObject {
  Q_OBJECT

 public:
  // Lines go to `display` of the guest.
  explicit MirrorServer(int display);
  ~MirrorServer() override;

  // Listens under a name until the end. Returns what is wrong, or nothing.
  QString Listen(const QString& name);

 Q_SIGNALS:
  // How many others send to this one.
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
