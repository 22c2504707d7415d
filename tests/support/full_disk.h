// Full disks, and files of other users.
#ifndef TESTS_SUPPORT_FULL_DISK_H_
#define TESTS_SUPPORT_FULL_DISK_H_

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace tavi {

// While it exists, no file of this process and its children grows beyond this many bytes.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &limit_);
    const rlimit small{bytes, limit_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &limit_);
    std::signal(SIGXFSZ, before_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*before_)(int);
  rlimit limit_{};
};

constexpr uid_t kNobody = 65534;

inline bool IsRoot() { return geteuid() == 0; }

// While it exists, root acts as another user.
class AsNobody {
 public:
  AsNobody() : is_done_(seteuid(kNobody) == 0) {}
  ~AsNobody() {
    if (is_done_ && seteuid(0) != 0) abort();
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  bool is_done_;
};

}  // namespace tavi

#endif  // TESTS_SUPPORT_FULL_DISK_H_
