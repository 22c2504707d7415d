#include "tests/support/count_threads.h"

#include <thread>

#include <QDeadlineTimer>

namespace taviinputmanager {

bool ThreadsComeDownTo(int count) {
  const QDeadlineTimer limit(10000);
  while (CountThreads() > count) {
    if (limit.hasExpired()) return false;
    std::this_thread::yield();
  }
  return true;
}

}  // namespace taviinputmanager
