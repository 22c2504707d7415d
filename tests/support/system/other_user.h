// Runs code as another user. POSIX only.
#ifndef TESTS_SUPPORT_SYSTEM_OTHER_USER_H_
#define TESTS_SUPPORT_SYSTEM_OTHER_USER_H_

#include <cstdlib>
#include <unistd.h>

namespace tavi {

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

#endif  // TESTS_SUPPORT_SYSTEM_OTHER_USER_H_
