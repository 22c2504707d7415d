#include <gtest/gtest.h>

// The sanitizers look these functions up by name, so that they must not be hidden.
#if defined(__SANITIZE_THREAD__)
// The distribution's Qt is not instrumented: its locks are invisible, its own memory is not ours to judge.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options();
extern "C" const char* __tsan_default_options() { return "ignore_noninstrumented_modules=1"; }
#endif

#if defined(__SANITIZE_ADDRESS__)
// What the platform "offscreen" leaves behind with its screen.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libqoffscreen.so\n"; }
#endif

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
