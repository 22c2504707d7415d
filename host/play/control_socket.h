// The way from a script to a player at work: a socket in the user's own folder. A line of words goes in, one line comes
// back, "ok", "ok ANSWER" or "error WHY".
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
  QString text;  // what was asked for, or why not; may be empty when it is ok
};

// Main thread.
class ControlSocket : public QObject {
  Q_OBJECT

 public:
  static constexpr char kUsualName[] = "play";

  // Whether there is a folder of the user's own for it.
  static bool HasPlace();

  using Handler = std::function<ControlAnswer(const QString& line)>;
  // `handler` is called for each line; the lines of its answer go out as one.
  explicit ControlSocket(Handler handler, QObject* parent = nullptr);

  // Listens under a name until the end. Returns what is wrong, or nothing.
  QString Listen(const QString& name);

 private:
  void TakeConnection(QLocalSocket* socket);
  void TakeLines(QLocalSocket* socket);

  const Handler handler_;
  MirrorListener listener_;
};

// Asks the player that listens under this name, and waits for its answer.
ControlAnswer AskPlayer(const QString& name, const QString& line);

}  // namespace tavi

#endif  // HOST_PLAY_CONTROL_SOCKET_H_
