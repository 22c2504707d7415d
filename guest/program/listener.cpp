#include "guest/program/listener.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace taviguest {

namespace {

constexpr mode_t kForOwnerAlone = S_IRUSR | S_IWUSR;
constexpr int kWaiting = 4;  // connections that wait for the answer whether they are accepted

std::string Reason() { return std::strerror(errno); }

sockaddr_in AddressOf(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<in_port_t>(port));
  return address;
}

sockaddr_un AddressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof(address.sun_path) - 1);
  return address;
}

template <typename Address>
bool Bind(int file, const Address& address) {
  return bind(file, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 && listen(file, kWaiting) == 0;
}

bool IsAnyoneListening(const std::string& path) {
  const int file = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  const sockaddr_un address = AddressOf(path);
  const bool is_refused =
      connect(file, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 && errno == ECONNREFUSED;
  close(file);
  return !is_refused;
}

// Removes the socket file of a program that was killed; returns the error, or an empty string.
std::string MakeRoom(const std::string& path) {
  struct stat there {};
  if (lstat(path.c_str(), &there) != 0) return {};
  if (!S_ISSOCK(there.st_mode)) return path + " already exists and is not a socket";
  if (there.st_uid != geteuid()) return path + " already exists and belongs to another user";
  if (IsAnyoneListening(path)) return path + ": another program listens there";
  return unlink(path.c_str()) == 0 ? std::string() : path + " cannot be replaced: " + Reason();
}

}  // namespace

Listener::~Listener() {
  if (file_ >= 0) close(file_);
  struct stat there {};
  const bool is_ours =
      !path_.empty() && lstat(path_.c_str(), &there) == 0 && there.st_dev == device_ && there.st_ino == inode_;
  if (is_ours) unlink(path_.c_str());
}

std::string Listener::Open(const ListenAddress& address) {
  return address.path.empty() ? OpenPort(address.port) : OpenPath(address.path);
}

// The port of a program that has just ended can be reused at once.
std::string Listener::OpenPort(int port) {
  file_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  const int is_on = 1;
  setsockopt(file_, SOL_SOCKET, SO_REUSEADDR, &is_on, sizeof(is_on));
  sockaddr_in address = AddressOf(port);
  if (!Bind(file_, address)) return "port " + std::to_string(port) + " cannot be listened on: " + Reason();
  socklen_t size = sizeof(address);
  getsockname(file_, reinterpret_cast<sockaddr*>(&address), &size);
  place_ = "tcp:127.0.0.1:" + std::to_string(ntohs(address.sin_port));
  return {};
}

// The mode applies before the file exists, so that it is never wider.
std::string Listener::OpenPath(const std::string& path) {
  const std::string problem = MakeRoom(path);
  if (!problem.empty()) return problem;
  file_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  fchmod(file_, kForOwnerAlone);
  if (!Bind(file_, AddressOf(path))) return path + " cannot be listened on: " + Reason();
  struct stat made {};
  if (lstat(path.c_str(), &made) != 0) return path + " was removed: " + Reason();
  path_ = path;
  device_ = made.st_dev;
  inode_ = made.st_ino;
  place_ = "unix:" + path;
  return {};
}

int Listener::Accept() const { return accept4(file_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK); }

}  // namespace taviguest
