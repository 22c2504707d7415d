#include "host/mirror/mirror_targets.h"

#include <QDeadlineTimer>
#include <QLocalSocket>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_message.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

// A target that stops reading must not make this instance's memory grow without limit.
constexpr qint64 kMaxWaitingBytes = 1 << 20;
constexpr int kFinishLimitMs = 1000;  // all targets together

const QString kGone = QStringLiteral("it disconnected");

QString ProblemOf(const QLocalSocket& socket) {
  switch (socket.error()) {
    case QLocalSocket::PeerClosedError: return kGone;
    case QLocalSocket::ServerNotFoundError:
    case QLocalSocket::ConnectionRefusedError: return QStringLiteral("no instance listens under that name");
    default: return socket.errorString();
  }
}

}  // namespace

// The callbacks for the library.
struct MirrorFunctions {
  static void SyncEvent(const QString& command, const QVector<QString>& targets) { Carry(false, command, targets); }
  static void SyncText(const QString& command, const QVector<QString>& targets) { Carry(true, command, targets); }

  static void Carry(bool is_text, const QString& line, const QVector<QString>& targets) {
    if (targets.isEmpty()) return;
    MirrorTargets* mirror = MirrorTargets::GetInstance();
    QMetaObject::invokeMethod(mirror, [=] { mirror->Carry({is_text, line}, targets); });
  }
};

MirrorTargets* MirrorTargets::GetInstance() {
  static MirrorTargets instance;
  return &instance;
}

MirrorTargets::MirrorTargets() {
  taviinputmanager::SetInputEventSyncFunc(reinterpret_cast<void*>(MirrorFunctions::SyncEvent));
  taviinputmanager::SetInputTextSyncFunc(reinterpret_cast<void*>(MirrorFunctions::SyncText));
}

MirrorTargets::~MirrorTargets() = default;

void MirrorTargets::DeleteLater::operator()(QLocalSocket* socket) const {
  socket->disconnect();
  socket->deleteLater();
}

void MirrorTargets::Add(const QString& name) {
  if (sockets_.count(name) != 0) return;
  const QString problem = MirrorNameProblem(name);
  if (!problem.isEmpty()) return Q_EMIT Lost(name, problem);
  auto* socket = new QLocalSocket;
  sockets_[name].reset(socket);
  connect(socket, &QLocalSocket::connected, this, [this, name, socket] {
    if (!IsOfThisUser(*socket)) return Drop(name, QStringLiteral("another user listens under that name"));
    taviinputmanager::StartSync(name, QString(), QString());
    Q_EMIT Reached(name);
  });
  connect(socket, &QLocalSocket::disconnected, this, [this, name] { Drop(name, kGone); });
  connect(socket, &QLocalSocket::errorOccurred, this,
          [this, name, socket](QLocalSocket::LocalSocketError) { Drop(name, ProblemOf(*socket)); });
  // The other end never writes; on Windows only a socket that reads notices that it has closed.
  connect(socket, &QLocalSocket::readyRead, this, [socket] { socket->readAll(); });
  socket->connectToServer(MirrorAddressOf(name));
}

void MirrorTargets::Remove(const QString& name) {
  taviinputmanager::StopSync(name);
  sockets_.erase(name);
}

QStringList MirrorTargets::Names() const {
  QStringList names;
  for (const auto& entry : sockets_) names.append(entry.first);
  return names;
}

void MirrorTargets::Finish() {
  const QDeadlineTimer limit(kFinishLimitMs);
  for (const auto& entry : sockets_) {
    QLocalSocket* socket = entry.second.get();
    socket->blockSignals(true);  // a failure must not change the list
    while (socket->bytesToWrite() > 0 && socket->waitForBytesWritten(static_cast<int>(limit.remainingTime()))) {
    }
    socket->blockSignals(false);
  }
}

void MirrorTargets::Drop(const QString& name, const QString& problem) {
  if (sockets_.count(name) == 0) return;  // a socket signals its end in two ways
  Remove(name);
  Q_EMIT Lost(name, problem);
}

void MirrorTargets::Carry(const MirrorMessage& message, const QVector<QString>& targets) {
  if (pauses_ > 0) return;
  if (message.line.size() >= kTooLongMirrorLine) return Q_EMIT TooLong(message.line.size());
  for (const QString& name : targets) {
    const auto found = sockets_.find(name);
    if (found == sockets_.end()) continue;
    QLocalSocket* socket = found->second.get();
    QDataStream stream(socket);
    stream.setVersion(kMirrorStreamVersion);
    stream << message;
    if (socket->bytesToWrite() > kMaxWaitingBytes) Drop(name, QStringLiteral("it stopped reading lines"));
  }
}

}  // namespace tavi
