// Built into every program under a sanitizer, which looks these functions up by name as it starts.

#if defined(__SANITIZE_THREAD__)
// The distribution's Qt and Poco are not instrumented: their locks are not seen, so what they guard looks like a race.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options() {
  return "ignore_noninstrumented_modules=1";
}
#endif

#if defined(__SANITIZE_ADDRESS__)
// What Qt's platform "offscreen" leaves behind with its screen.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:libqoffscreen.so\n";
}
#endif
