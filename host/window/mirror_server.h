#ifndef HOST_WINDOW_MIRROR_SERVER_H_
#define HOST_WINDOW_MIRROR_SERVER_H_

#include <memory>
#include <vector>

#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

namespace tavi {

// Takes the lines of other instances and gives them to this one's guest, as they are: places are touch coordinates, so
// guests of one size are meant.
//
// Main thread.
class MirrorServer : public QObject {
  Q_OBJECT

 public:
  // Lines go to `display` of the guest.
  explicit MirrorServer(int display);
  ~MirrorServer() override;

  // Listens under a name until the end. Returns what is wrong, or nothing. A name that a crashed instance left behind
  // is taken over; one that is in use is not.
  QString Listen(const QString& name);

 Q_SIGNALS:
  // How many others send to this one.
  void SourcesChanged(int count);

 private:
  class Source;

  void TakeConnections();
  void Forget(Source* source);

  const int display_;
  QLocalServer server_;
  std::vector<std::unique_ptr<Source>> sources_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MIRROR_SERVER_H_
