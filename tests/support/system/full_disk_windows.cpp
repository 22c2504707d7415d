#include "tests/support/system/full_disk.h"

namespace tavi {

FileSizeLimit::FileSizeLimit(unsigned /*bytes*/) : restore_([] {}) {}

}  // namespace tavi
