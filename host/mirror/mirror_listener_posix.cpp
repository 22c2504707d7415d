#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSocketNotifier>
#include <QTimer>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_listener.h"
#include "host/mirror/peer_posix.h"

namespace tavi {

namespace {

constexpr int kWaiting = 16;  // connections that the system queues until they are accepted
constexpr int kRestMs = 500;  // delay before the next attempt when the system has no resources
constexpr int kNewSocket = SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK;

// Closed on destruction.
class Descriptor {
 public:
  explicit Descriptor(int file) : file_(file) {}
  ~Descriptor() {
    if (file_ >= 0) close(file_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return file_; }

 private:
  const int file_;
};

QString Problem() { return qt_error_string(errno); }

bool FillAddress(const QByteArray& path, sockaddr_un* address) {
  *address = {};
  address->sun_family = AF_UNIX;
  if (path.size() >= static_cast<int>(sizeof(address->sun_path))) return false;
  std::memcpy(address->sun_path, path.constData(), static_cast<std::size_t>(path.size()));
  return true;
}

const sockaddr* Plain(const sockaddr_un& address) { return reinterpret_cast<const sockaddr*>(&address); }

// Whether a program still listens there; a socket without a program refuses.
bool IsAlive(const sockaddr_un& address) {
  const Descriptor probe(socket(AF_UNIX, kNewSocket, 0));
  return connect(probe.Get(), Plain(address), sizeof(address)) == 0 || errno != ECONNREFUSED;
}

// Returns why the address cannot be used, or an empty string.
QString ClearAddress(const sockaddr_un& address, const QString& name) {
  struct stat status {};
  if (lstat(address.sun_path, &status) != 0) return errno == ENOENT ? QString() : Problem();
  if (!S_ISSOCK(status.st_mode) || status.st_uid != geteuid()) {
    return QStringLiteral("%1 is not a socket of this user").arg(QFile::decodeName(address.sun_path));
  }
  if (IsAlive(address)) return QStringLiteral("another instance listens as %1").arg(name);
  return unlink(address.sun_path) == 0 ? QString() : Problem();
}

// A program that only checked whether someone listens has disconnected already.
bool HasGone(int file) {
  char byte = 0;
  return recv(file, &byte, sizeof(byte), MSG_PEEK | MSG_DONTWAIT) == 0;
}

bool IsShortage(int error) { return error == EMFILE || error == ENFILE || error == ENOBUFS || error == ENOMEM; }

}  // namespace

// A listening socket and its file.
class MirrorListener::Entrance {
 public:
  explicit Entrance(MirrorListener* owner) : owner_(owner), socket_(socket(AF_UNIX, kNewSocket, 0)) {}
  ~Entrance() {
    struct stat status {};
    const bool is_ours = has_file_ && lstat(address_.sun_path, &status) == 0 && status.st_ino == file_.st_ino &&
                         status.st_dev == file_.st_dev;
    if (is_ours) unlink(address_.sun_path);
  }
  Entrance(const Entrance&) = delete;
  Entrance& operator=(const Entrance&) = delete;

  // If two instances start at once, one waits for the other.
  QString Open(const QString& path, const QString& name) {
    if (!FillAddress(QFile::encodeName(path), &address_)) return qt_error_string(ENAMETOOLONG);
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const Descriptor lock(open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (socket_.Get() < 0 || lock.Get() < 0 || flock(lock.Get(), LOCK_EX) != 0) return Problem();
    QString problem = ClearAddress(address_, name);
    if (!problem.isEmpty()) return problem;
    if (bind(socket_.Get(), Plain(address_), sizeof(address_)) != 0) return Problem();
    has_file_ = lstat(address_.sun_path, &file_) == 0;
    if (listen(socket_.Get(), kWaiting) != 0) return Problem();
    notifier_ = std::make_unique<QSocketNotifier>(socket_.Get(), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, owner_, [this] { TakeAll(); });
    return {};
  }

 private:
  void TakeAll() {
    for (;;) {
      const int file = accept4(socket_.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
      if (file >= 0) {
        Take(file);
      } else if (errno != EINTR && errno != ECONNABORTED) {
        if (IsShortage(errno)) Rest();
        return;
      }
    }
  }

  void Take(int file) {
    auto taken = std::make_unique<QLocalSocket>();
    const bool is_welcome = IsPeerOfThisUser(file) && !HasGone(file);
    if (is_welcome && taken->setSocketDescriptor(file)) {
      Q_EMIT owner_->Connected(taken.release());
    } else {
      close(file);
    }
  }

  // A waiting connection would be signalled repeatedly meanwhile.
  void Rest() {
    notifier_->setEnabled(false);
    QTimer::singleShot(kRestMs, notifier_.get(), [this] { notifier_->setEnabled(true); });
  }

  MirrorListener* owner_;
  const Descriptor socket_;
  std::unique_ptr<QSocketNotifier> notifier_;
  sockaddr_un address_{};
  bool has_file_ = false;
  struct stat file_ {};
};

MirrorListener::MirrorListener(QObject* parent) : QObject(parent) {}

MirrorListener::~MirrorListener() = default;

QString MirrorListener::Listen(const QString& name) {
  QString problem = MirrorNameProblem(name);
  if (!problem.isEmpty()) return problem;
  const QString path = MirrorAddressOf(name);
  if (path.isEmpty()) return QStringLiteral("there is no private folder for the socket (XDG_RUNTIME_DIR)");
  entrance_ = std::make_unique<Entrance>(this);
  problem = entrance_->Open(path, name);
  if (!problem.isEmpty()) entrance_.reset();
  return problem;
}

}  // namespace tavi
