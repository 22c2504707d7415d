#include <gtest/gtest.h>

#if defined(__SANITIZE_THREAD__)
// The distribution's Qt is not instrumented: its locks are invisible, its own memory is not ours to judge.
extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_options() { return "ignore_noninstrumented_modules=1"; }
#endif

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
