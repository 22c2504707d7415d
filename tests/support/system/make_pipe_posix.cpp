#include <sys/stat.h>

#include "tests/support/system/make_pipe.h"

namespace tavi {

bool MakePipe(const char* path) { return mkfifo(path, 0600) == 0; }

}  // namespace tavi
