// Linked into every program under a sanitizer, which looks up these functions by name at startup.

#if defined(__has_feature)
#if __has_feature(address_sanitizer) && !defined(__SANITIZE_ADDRESS__)
#define __SANITIZE_ADDRESS__  // the definition of the other compiler
#endif
#endif

#if defined(__SANITIZE_THREAD__)
// The distribution's Qt and Poco are not instrumented: their locks are invisible, so data that they guard looks like a
// race.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options() {
  return "ignore_noninstrumented_modules=1:print_suppressions=0";
}
#endif

#if defined(__SANITIZE_ADDRESS__)
// Leaks of Qt: the screen of its platform "offscreen", and requests to the session bus on X11.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:libqoffscreen.so\n"
         "leak:libdbus-1.so\n"
         "leak:QWindowSystemInterface::handleScreenAdded\n";
}

// No list of suppressions after each output.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_options() {
  return "print_suppressions=0";
}
#endif
