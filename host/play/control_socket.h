// The connection from a script to a running player: a socket in a private folder of the user. A command line is sent,
// and one line is returned: "ok", "ok ANSWER" or "error WHY".
#ifndef HOST_PLAY_CONTROL_SOCKET_H_
#define HOST_PLAY_CONTROL_SOCKET_H_

#include <functional>

#include <QObject>
#include <QString>

#include "host/mirror/mirror_listener.h"

class QLocalSocket;

namespace tavi {

struct ControlAnswer {
  bool is_ok = true;
  QString text;  // the answer, or the error; may be empty after "ok"
};

// Main thread.
class ControlSocket : public QObject {
  Q_OBJECT

 public:
  static constexpr char kUsualName[] = "play";

  // Whether the user has a private folder for it.
  static bool HasPlace();

  using Handler = std::function<ControlAnswer(const QString& line)>;
  // `handler` is called for each line; the lines of its answer are joined to one.
  explicit ControlSocket(Handler handler, QObject* parent = nullptr);

  // Listens under a name until destruction. Returns the error, or an empty string.
  QString Listen(const QString& name);

 private:
  void TakeConnection(QLocalSocket* socket);
  void TakeLines(QLocalSocket* socket);

  const Handler handler_;
  MirrorListener listener_;
};

// Sends a command to the player that listens under this name, and waits for its answer.
ControlAnswer AskPlayer(const QString& name, const QString& line);

}  // namespace tavi

#endif  // HOST_PLAY_CONTROL_SOCKET_H_
