// How many threads a process has.
#ifndef TESTS_SUPPORT_COUNT_THREADS_H_
#define TESTS_SUPPORT_COUNT_THREADS_H_

#include <thread>

#include <QDir>

namespace taviinputmanager {

// Of this process, with those of its libraries and of a sanitizer.
inline int CountThreads() {
  // A sanitizer starts a thread of its own beside the first that a program starts.
  static const bool sanitizer_is_ready = (std::thread([] {}).join(), true);
  static_cast<void>(sanitizer_is_ready);
  return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_COUNT_THREADS_H_
