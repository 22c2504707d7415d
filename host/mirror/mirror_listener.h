#ifndef HOST_MIRROR_MIRROR_LISTENER_H_
#define HOST_MIRROR_MIRROR_LISTENER_H_

#include <memory>

#include <QObject>
#include <QString>

class QLocalSocket;

namespace tavi {

// Takes the connections of other programs of the same user, and of nobody else. Where the system has no room for one
// more, those who wait are taken when it has.
//
// Main thread.
class MirrorListener : public QObject {
  Q_OBJECT

 public:
  explicit MirrorListener(QObject* parent = nullptr);
  // Nothing is left behind for others to find.
  ~MirrorListener() override;

  // Listens under a name until the end, once. Returns what is wrong, or nothing. What a crashed instance left behind is
  // replaced; a name that is in use is not taken, and what is no socket of this user's is not touched.
  QString Listen(const QString& name);

 Q_SIGNALS:
  // The socket is the receiver's to delete.
  void Connected(QLocalSocket* socket);

 private:
  class Entrance;  // of the platform

  std::unique_ptr<Entrance> entrance_;
};

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_LISTENER_H_
