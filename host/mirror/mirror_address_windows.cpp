#include <windows.h>
#include <optional>

#include <QByteArray>
#include <QLocalSocket>

#include "host/mirror/mirror_address.h"

namespace tavi {

namespace {

// Closes the handle in its destructor.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (handle_) CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE Get() const { return handle_; }

 private:
  const HANDLE handle_;
};

// Either end of a pipe can query the programs of both.
std::optional<DWORD> OtherProgramOf(HANDLE pipe) {
  ULONG server = 0;
  ULONG client = 0;
  if (!GetNamedPipeServerProcessId(pipe, &server) || !GetNamedPipeClientProcessId(pipe, &client)) return std::nullopt;
  return server == GetCurrentProcessId() ? client : server;
}

// A TOKEN_USER, or nothing if the program does not reveal its user.
QByteArray UserOf(HANDLE process) {
  HANDLE opened = nullptr;
  if (!OpenProcessToken(process, TOKEN_QUERY, &opened)) return {};
  const Handle token(opened);
  DWORD size = 0;
  GetTokenInformation(token.Get(), TokenUser, nullptr, 0, &size);
  QByteArray user(static_cast<int>(size), Qt::Uninitialized);
  return GetTokenInformation(token.Get(), TokenUser, user.data(), size, &size) ? user : QByteArray();
}

bool IsSameUser(const QByteArray& one, const QByteArray& other) {
  if (one.isEmpty() || other.isEmpty()) return false;
  return EqualSid(reinterpret_cast<const TOKEN_USER*>(one.constData())->User.Sid,
                  reinterpret_cast<const TOKEN_USER*>(other.constData())->User.Sid) != FALSE;
}

}  // namespace

// Pipes have names but no files.
QString MirrorAddressOf(const QString& name) {
  return QStringLiteral("tavi-%1-%2").arg(qEnvironmentVariable("USERNAME"), name);
}

// A pipe admits only its owner, but anyone may be the first to create a pipe of any name.
bool IsOfThisUser(const QLocalSocket& socket) {
  const std::optional<DWORD> other = OtherProgramOf(reinterpret_cast<HANDLE>(socket.socketDescriptor()));
  if (!other) return false;
  const Handle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, *other));
  return process.Get() && IsSameUser(UserOf(process.Get()), UserOf(GetCurrentProcess()));
}

}  // namespace tavi
