// How many threads a process has.
#ifndef TESTS_SUPPORT_COUNT_THREADS_H_
#define TESTS_SUPPORT_COUNT_THREADS_H_

#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>

namespace taviinputmanager {

// A sanitizer starts a thread of its own with the program's first one. That one disappears only a moment after it was
// joined.
inline bool StartAFirstThread() {
  QString task;
  std::thread([&task] { task = QStringLiteral("/proc/self/task/%1").arg(syscall(SYS_gettid)); }).join();
  while (QFileInfo::exists(task)) std::this_thread::yield();
  return true;
}

// Of this process, including those of its libraries and of a sanitizer.
inline int CountThreads() {
  static const bool sanitizer_is_ready = StartAFirstThread();
  static_cast<void>(sanitizer_is_ready);
  return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

// Whether at most `count` are left. Qt reports that a thread has finished a moment before it is gone.
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
