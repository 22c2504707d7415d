#include "guest/device/device_keeper.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace taviguest {

namespace {

constexpr char kProcessName[] = "tavi-keeper";
constexpr timespec kSeenByReaders{0, 100'000'000};  // 0.1 s

struct KeptDevice {
  int file = -1;
  size_t size = 0;  // of `rest`, in bytes
  input_event rest[DeviceKeeper::kMostRestEvents];
};

// A message contains the rest events, with the descriptor as ancillary data.
struct Message {
  Message(void* bytes, size_t size) : part{bytes, size} {
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = control;
    header.msg_controllen = sizeof(control);
  }

  iovec part;
  msghdr header{};
  alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
};

// From here to the end of the namespace: code of the forked process, whose parent may have threads. It uses only
// async-signal-safe calls and no heap memory.

void CloseFrom(int first) {
  rlimit limit{};
  getrlimit(RLIMIT_NOFILE, &limit);
  for (int file = first; static_cast<rlim_t>(file) < limit.rlim_cur; ++file) close(file);
}

// The socket is the only descriptor that stays, as the first.
void LeaveProgram(int socket) {
  dup2(socket, 0);
  if (syscall(SYS_close_range, 1U, ~0U, 0U) != 0) CloseFrom(1);  // kernels before 5.9 do not know it
  setsid();
  prctl(PR_SET_NAME, kProcessName);
  if (chdir("/") != 0) return;  // at worst, a mount stays busy a little longer
}

// False if the program has exited, or has closed its end.
bool Receive(KeptDevice* device) {
  Message message(device->rest, sizeof(device->rest));
  ssize_t size = 0;
  do {
    size = recvmsg(0, &message.header, 0);
  } while (size < 0 && errno == EINTR);
  if (size <= 0) return false;
  const cmsghdr* control = CMSG_FIRSTHDR(&message.header);
  if (!control || control->cmsg_type != SCM_RIGHTS) return true;
  std::memcpy(&device->file, CMSG_DATA(control), sizeof(device->file));
  device->size = static_cast<size_t>(size);
  return true;
}

[[noreturn]] void KeepDevices(int socket) {
  KeptDevice devices[DeviceKeeper::kMostDevices];
  LeaveProgram(socket);
  size_t count = 0;
  while (count < DeviceKeeper::kMostDevices && Receive(&devices[count])) ++count;
  KeptDevice none;
  while (count == DeviceKeeper::kMostDevices && Receive(&none)) close(none.file);
  bool is_all_lifted = true;
  for (size_t i = 0; i < count; ++i) {
    is_all_lifted = write(devices[i].file, devices[i].rest, devices[i].size) > 0 && is_all_lifted;
  }
  nanosleep(&kSeenByReaders, nullptr);
  _exit(is_all_lifted ? 0 : 1);
}

}  // namespace

DeviceKeeper::~DeviceKeeper() {
  if (process_ == 0) return;
  close(socket_);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

// Signals are blocked until the new process is set up, and all are ignored afterwards.
std::string DeviceKeeper::Start() {
  int sockets[2];
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets) != 0) {
    return std::string("no socket for the keeper of the devices: ") + std::strerror(errno);
  }
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before);
  const pid_t process = fork();
  if (process == 0) KeepDevices(sockets[1]);
  const int error = errno;
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  close(sockets[1]);
  if (process < 0) {
    close(sockets[0]);
    return std::string("no process for the keeper of the devices: ") + std::strerror(error);
  }
  socket_ = sockets[0];
  process_ = process;
  return {};
}

std::string DeviceKeeper::Keep(int device, const std::vector<input_event>& rest) const {
  Message message(const_cast<input_event*>(rest.data()), rest.size() * sizeof(input_event));
  cmsghdr* control = CMSG_FIRSTHDR(&message.header);
  control->cmsg_level = SOL_SOCKET;
  control->cmsg_type = SCM_RIGHTS;
  control->cmsg_len = CMSG_LEN(sizeof(device));
  std::memcpy(CMSG_DATA(control), &device, sizeof(device));
  if (sendmsg(socket_, &message.header, MSG_NOSIGNAL) >= 0) return {};
  return std::string("the keeper of the devices takes none: ") + std::strerror(errno);
}

}  // namespace taviguest
