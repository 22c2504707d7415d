#include <windows.h>

#include <QLocalServer>
#include <QLocalSocket>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_listener.h"

namespace tavi {

namespace {

// Two programs may listen on pipes with the same name. The check makes no connection, which the other would count.
bool IsInUse(const QString& address) {
  const QString pipe = QStringLiteral("\\\\.\\pipe\\") + address;
  return WaitNamedPipeW(reinterpret_cast<const wchar_t*>(pipe.utf16()), NMPWAIT_NOWAIT) != FALSE ||
         GetLastError() != ERROR_FILE_NOT_FOUND;
}

}  // namespace

// A pipe is removed with its program, and admits only its owner.
class MirrorListener::Entrance {
 public:
  explicit Entrance(MirrorListener* owner) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, owner, [this, owner] {
      while (QLocalSocket* socket = server_.nextPendingConnection()) {
        socket->setParent(nullptr);
        Q_EMIT owner->Connected(socket);
      }
    });
  }

  QString Open(const QString& address) { return server_.listen(address) ? QString() : server_.errorString(); }

 private:
  QLocalServer server_;
};

MirrorListener::MirrorListener(QObject* parent) : QObject(parent) {}

MirrorListener::~MirrorListener() = default;

QString MirrorListener::Listen(const QString& name) {
  const QString problem = MirrorNameProblem(name);
  if (!problem.isEmpty()) return problem;
  const QString address = MirrorAddressOf(name);
  if (IsInUse(address)) return QStringLiteral("another instance listens as %1").arg(name);
  entrance_ = std::make_unique<Entrance>(this);
  return entrance_->Open(address);
}

}  // namespace tavi
