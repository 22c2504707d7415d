// Named pipes in a folder.
#ifndef TESTS_SUPPORT_SYSTEM_MAKE_PIPE_H_
#define TESTS_SUPPORT_SYSTEM_MAKE_PIPE_H_

namespace tavi {

// False if the system has no such pipes.
bool MakePipe(const char* path);

}  // namespace tavi

#endif  // TESTS_SUPPORT_SYSTEM_MAKE_PIPE_H_
