// How many threads a process has.
#ifndef TESTS_SUPPORT_COUNT_THREADS_H_
#define TESTS_SUPPORT_COUNT_THREADS_H_

namespace taviinputmanager {

// Of this process, with those of its libraries and of a sanitizer; on Windows, without the system's own helpers.
int CountThreads();

// Whether at most `count` are left. Qt reports that a thread has finished a moment before it is gone.
bool ThreadsComeDownTo(int count);

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_COUNT_THREADS_H_
