// Waits in real time for a condition.
#ifndef TESTS_SUPPORT_RUN_UNTIL_H_
#define TESTS_SUPPORT_RUN_UNTIL_H_

#include <functional>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace taviinputmanager {

// Runs the event loop until `condition` holds; false if that takes unreasonably long.
inline bool RunEventsUntil(const std::function<bool()>& condition) {
  const QDeadlineTimer limit(60000);
  QTimer heartbeat;
  heartbeat.start(1);
  while (!condition()) {
    if (limit.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_RUN_UNTIL_H_
