// Disks that take only so much.
#ifndef TESTS_SUPPORT_SYSTEM_FULL_DISK_H_
#define TESTS_SUPPORT_SYSTEM_FULL_DISK_H_

#include <functional>

namespace tavi {

// While it lives, no file of this process and of those it starts grows beyond so many bytes. Windows knows no such
// limit: the tests of full disks are left out there.
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
