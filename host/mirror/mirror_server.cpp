#include "host/mirror/mirror_server.h"

#include <algorithm>

#include <QLocalSocket>

#include "host/guest/guest_model.h"
#include "host/guest/held_input.h"
#include "host/mirror/mirror_message.h"
#include "host/mirror/mirror_targets.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

// One connected instance. What it holds down is released when it disconnects.
class MirrorServer::Source {
 public:
  Source(QLocalSocket* socket, int display) : socket_(socket), display_(display), model_(display) {
    socket_->setReadBufferSize(kMirrorBufferBytes);
  }
  ~Source() {
    socket_->disconnect();
    socket_->deleteLater();
    ReleaseHeld();
  }
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  // False if the data is not a message.
  bool TakeMessages() {
    for (;;) {
      MirrorMessage message;
      const MirrorReading reading = ReadMirrorMessage(socket_, &message);
      if (reading != MirrorReading::kMessage) return reading == MirrorReading::kIncomplete;
      Take(message);
    }
  }

 private:
  void Take(const MirrorMessage& message) {
    if (!message.line.endsWith(QLatin1Char('\n'))) return;
    const MirrorTargets::Pause pause;
    if (message.is_text) {
      taviinputmanager::OnInputRawTextData(message.line);
    } else {
      Put(message.line);
    }
  }

  void Put(const QString& line) {
    model_.ApplyEvent(QStringLiteral("%1:%2").arg(display_).arg(line.chopped(1)));
    taviinputmanager::OnInputRawEventData(line, display_);
  }

  void ReleaseHeld() {
    const MirrorTargets::Pause pause;
    for (const QString& line : LiftLines(model_.state())) Put(line + QLatin1Char('\n'));
  }

  QLocalSocket* socket_;
  const int display_;
  GuestModel model_;
};

MirrorServer::MirrorServer(int display) : display_(display) {
  connect(&listener_, &MirrorListener::Connected, this, &MirrorServer::TakeConnection);
}

MirrorServer::~MirrorServer() = default;

QString MirrorServer::Listen(const QString& name) { return listener_.Listen(name); }

void MirrorServer::TakeConnection(QLocalSocket* socket) {
  socket->setParent(this);  // deleted with this object at the latest
  sources_.push_back(std::make_unique<Source>(socket, display_));
  Source* source = sources_.back().get();
  connect(socket, &QLocalSocket::disconnected, this, [this, source] { Forget(source); });
  connect(socket, &QLocalSocket::readyRead, this, [this, source] {
    if (!source->TakeMessages()) Forget(source);
  });
  Q_EMIT SourcesChanged(static_cast<int>(sources_.size()));
  if (!source->TakeMessages()) Forget(source);
}

void MirrorServer::Forget(Source* source) {
  const auto found =
      std::find_if(sources_.begin(), sources_.end(), [&](const auto& entry) { return entry.get() == source; });
  if (found == sources_.end()) return;
  sources_.erase(found);
  Q_EMIT SourcesChanged(static_cast<int>(sources_.size()));
}

}  // namespace tavi
