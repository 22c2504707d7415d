// How many threads a process has.
#ifndef TESTS_SUPPORT_COUNT_THREADS_H_
#define TESTS_SUPPORT_COUNT_THREADS_H_

#include <thread>

#include <QDeadlineTimer>
#include <QDir>

namespace taviinputmanager {

// Of this process, with those of its libraries and of a sanitizer.
inline int CountThreads() {
  // A sanitizer starts a thread of its own beside the first that a program starts.
  static const bool sanitizer_is_ready = (std::thread([] {}).join(), true);
  static_cast<void>(sanitizer_is_ready);
  return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

// Whether no more than `count` are left. Qt tells that a thread is through a moment before it is gone.
inline bool ThreadsComeDownTo(int count) {
  const QDeadlineTimer limit(10000);
  while (CountThreads() > count) {
    if (limit.hasExpired()) return false;
    std::this_thread::yield();
  }
  return true;
}

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_COUNT_THREADS_H_
