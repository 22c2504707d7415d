// Simulates a full disk.
#ifndef TESTS_SUPPORT_SYSTEM_FULL_DISK_H_
#define TESTS_SUPPORT_SYSTEM_FULL_DISK_H_

#include <functional>

namespace tavi {

// While it exists, no file that this process or its children write grows beyond `bytes`. Windows has no such limit: the
// tests of full disks are left out there.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(unsigned bytes);
  ~FileSizeLimit() { restore_(); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  std::function<void()> restore_;
};

}  // namespace tavi

#endif  // TESTS_SUPPORT_SYSTEM_FULL_DISK_H_
