#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

#include <QLocalSocket>

#include "host/target/command_link.h"
#include "host/target/socket_link.h"
#include "qt/child_process.h"

namespace tavi {

namespace {

constexpr int kLongestSaid = 2000;  // of a reported line; longer ones are reported in parts

// In the child, between fork and exec: `input` becomes the command's standard input, and the command leaves the signals
// of the terminal to this program, which then ends it.
void PrepareCommand(int input) {
  dup2(input, STDIN_FILENO);
  for (const int number : {SIGINT, SIGQUIT, SIGHUP}) std::signal(number, SIG_IGN);
  std::signal(SIGPIPE, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  // This program waits for signals on a thread, and blocks them on the others.
  sigprocmask(SIG_SETMASK, &none, nullptr);
}

class CommandLink : public SocketLink<QLocalSocket> {
 public:
  explicit CommandLink(QString command) : command_(std::move(command)) {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.setInputChannelMode(QProcess::ForwardedInputChannel);  // no pipe to its standard input
    connect(&process_, &QProcess::readyRead, this, &CommandLink::TellSaid);
    connect(&process_, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int status, QProcess::ExitStatus how) { TakeEnd(status, how); });
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
      if (error == QProcess::FailedToStart) End(process_.errorString());
    });
    // The end of the process gives the reason; if it continues without its input, this does.
    disconnect(&socket_, &QLocalSocket::disconnected, this, nullptr);
    disconnect(&socket_, &QLocalSocket::errorOccurred, this, nullptr);
    connect(&socket_, &QLocalSocket::disconnected, this, [this] {
      if (!is_finishing_) CutAfter(kEndMs);
    });
    for (QTimer* timer : {&terminate_, &kill_}) timer->setSingleShot(true);
    connect(&terminate_, &QTimer::timeout, &process_, &QProcess::terminate);
    connect(&kill_, &QTimer::timeout, &process_, &QProcess::kill);
  }
  ~CommandLink() override {
    process_.disconnect(this);
    if (process_.state() == QProcess::NotRunning) return;
    process_.kill();
    process_.waitForFinished(kEndMs);
  }

  void Open() override {
    int files[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, files) != 0) return End(qt_error_string(errno));
    process_.setChildProcessModifier([input = files[1]] { PrepareCommand(input); });
    process_.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command_});
    close(files[1]);
    if (!socket_.setSocketDescriptor(files[0])) {
      close(files[0]);
      return End(socket_.errorString());
    }
    if (process_.state() != QProcess::NotRunning) Q_EMIT Connected();
  }

  void Finish(int limit_ms) override {
    is_finishing_ = true;
    socket_.abort();  // the command can still read what is in the socket
    if (process_.state() == QProcess::NotRunning) return;
    terminate_.start(limit_ms);
    kill_.start(2 * limit_ms);
  }

  void WaitForEnd(int limit_ms) override {
    if (process_.state() != QProcess::NotRunning) process_.waitForFinished(limit_ms);
  }

 protected:
  QString Problem() const override { return socket_.errorString(); }

 private:
  static constexpr int kEndMs = 500;  // a command that exits closes its input first

  void TellSaid() {
    while (process_.canReadLine() || process_.bytesAvailable() > kLongestSaid) {
      const QString line = QString::fromLocal8Bit(process_.readLine(kLongestSaid)).trimmed();
      if (!line.isEmpty()) Q_EMIT Said(line);
    }
  }

  void TakeEnd(int status, QProcess::ExitStatus how) {
    TellSaid();
    const QString rest = QString::fromLocal8Bit(process_.readAll()).trimmed();
    if (!rest.isEmpty()) Q_EMIT Said(rest);
    const bool is_signal = how == QProcess::CrashExit;
    End(is_signal ? QStringLiteral("it was ended by a signal")
                  : QStringLiteral("it ended with exit status %1").arg(status));
  }

  const QString command_;
  qt::ChildProcess process_;
  QTimer terminate_;
  QTimer kill_;
  bool is_finishing_ = false;
};

}  // namespace

QString CommandLinkProblem() { return {}; }

std::unique_ptr<TargetLink> MakeCommandLink(const QString& command) { return std::make_unique<CommandLink>(command); }

}  // namespace tavi
