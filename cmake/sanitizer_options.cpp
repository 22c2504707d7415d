// Built into every program under a sanitizer, which looks these functions up by name as it starts.

#if defined(__has_feature)
#if __has_feature(address_sanitizer) && !defined(__SANITIZE_ADDRESS__)
#define __SANITIZE_ADDRESS__  // as the other compiler has it
#endif
#endif

#if defined(__SANITIZE_THREAD__)
// The distribution's Qt and Poco are not instrumented: their locks are not seen, so what they guard looks like a race.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options() {
  return "ignore_noninstrumented_modules=1:print_suppressions=0";
}
#endif

#if defined(__SANITIZE_ADDRESS__)
// What Qt leaves behind with the screen of its platform "offscreen", and what it asks the session's bus on X11.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:libqoffscreen.so\n"
         "leak:libdbus-1.so\n"
         "leak:QWindowSystemInterface::handleScreenAdded\n";
}

// No list of what was suppressed behind each output.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_options() {
  return "print_suppressions=0";
}
#endif
