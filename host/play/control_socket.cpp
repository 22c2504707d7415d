#include "host/play/control_socket.h"

#include <utility>

#include <QLocalSocket>

#include "host/mirror/mirror_address.h"

namespace tavi {

namespace {

constexpr int kLongestLine = 8192;  // bytes, longer than any file name
constexpr int kConnectMs = 2000;
constexpr int kAnswerMs = 20000;  // reading a long record takes a while
const QString kOk = QStringLiteral("ok");
const QString kError = QStringLiteral("error");

// Windows that listen for mirrored lines use the same folder.
QString SocketNameOf(const QString& name) { return QStringLiteral("control-%1").arg(name); }

QByteArray OneLine(const QString& text) {
  return text.trimmed().replace(QLatin1Char('\n'), QLatin1String("; ")).toUtf8() + '\n';
}

QByteArray LineOf(const ControlAnswer& answer) {
  return OneLine((answer.is_ok ? kOk : kError) + QLatin1Char(' ') + answer.text);
}

}  // namespace

bool ControlSocket::HasPlace() { return !MirrorAddressOf(SocketNameOf(QLatin1String(kUsualName))).isEmpty(); }

ControlSocket::ControlSocket(Handler handler, QObject* parent) : QObject(parent), handler_(std::move(handler)) {
  connect(&listener_, &MirrorListener::Connected, this, &ControlSocket::TakeConnection);
}

QString ControlSocket::Listen(const QString& name) { return listener_.Listen(SocketNameOf(name)); }

void ControlSocket::TakeConnection(QLocalSocket* socket) {
  socket->setParent(this);  // deleted with this object at the latest
  connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  connect(socket, &QLocalSocket::readyRead, this, [this, socket] { TakeLines(socket); });
  TakeLines(socket);
}

// The answer is sent before the handler's next step, which may end the program.
void ControlSocket::TakeLines(QLocalSocket* socket) {
  while (socket->canReadLine()) {
    const QByteArray bytes = socket->readLine(kLongestLine);
    if (!bytes.endsWith('\n')) return socket->abort();  // the end of an overlong line would be read as a command
    const QString line = QString::fromUtf8(bytes).trimmed();
    if (line.isEmpty()) continue;
    socket->write(LineOf(handler_(line)));
    socket->flush();
  }
  if (socket->bytesAvailable() >= kLongestLine) socket->abort();  // not a line of ours
}

ControlAnswer AskPlayer(const QString& name, const QString& line) {
  const QString address = MirrorAddressOf(SocketNameOf(name));
  QLocalSocket socket;
  socket.connectToServer(address);
  if (address.isEmpty() || !socket.waitForConnected(kConnectMs)) {
    return {false, QStringLiteral("you have no \"tavi play\" running under the name \"%1\"").arg(name)};
  }
  if (!IsOfThisUser(socket)) return {false, QStringLiteral("another user listens there")};
  socket.write(OneLine(line));
  QByteArray answer;
  while (!answer.endsWith('\n') && socket.waitForReadyRead(kAnswerMs)) answer += socket.readAll();
  if (!answer.endsWith('\n')) return {false, QStringLiteral("no answer")};
  const QString text = QString::fromUtf8(answer).trimmed();
  const QString word = text.section(QLatin1Char(' '), 0, 0);
  return {word == kOk, text.section(QLatin1Char(' '), 1)};
}

}  // namespace tavi
