#ifndef HOST_MIRROR_MIRROR_LISTENER_H_
#define HOST_MIRROR_MIRROR_LISTENER_H_

#include <memory>

#include <QObject>
#include <QString>

class QLocalSocket;

namespace tavi {

// Accepts connections from other programs of the same user, and from nobody else. While the system has no resources for
// another connection, connections wait.
//
// Main thread.
class MirrorListener : public QObject {
  Q_OBJECT

 public:
  explicit MirrorListener(QObject* parent = nullptr);
  // Removes the socket.
  ~MirrorListener() override;

  // Listens under a name until destruction; may be called once. Returns the error, or an empty string. A socket left by
  // a crashed instance is replaced; a name that is in use is refused, and a file that is not a socket of this user is
  // not touched.
  QString Listen(const QString& name);

 Q_SIGNALS:
  // The receiver must delete the socket.
  void Connected(QLocalSocket* socket);

 private:
  class Entrance;  // platform specific

  std::unique_ptr<Entrance> entrance_;
};

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_LISTENER_H_
