#include <csignal>
#include <sys/resource.h>

#include "tests/support/system/full_disk.h"

namespace tavi {

// Writing more fails, without a signal.
FileSizeLimit::FileSizeLimit(unsigned bytes) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{bytes, before.rlim_max};
  const auto reaction = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  restore_ = [before, reaction] {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, reaction);
  };
}

}  // namespace tavi
