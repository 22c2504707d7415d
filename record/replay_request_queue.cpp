#include "record/replay_request_queue.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace taviinputmanager {

void ReplayRequestQueue::Perform(Request request) {
  if (QThread::currentThread() == thread()) return request();
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    waiting_.push_back(std::move(request));
  }
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void ReplayRequestQueue::customEvent(QEvent* /*event*/) { TakeFirst()(); }

// There is one request for each event.
ReplayRequestQueue::Request ReplayRequestQueue::TakeFirst() {
  const std::lock_guard<std::mutex> lock(mutex_);
  Request first = std::move(waiting_.front());
  waiting_.pop_front();
  return first;
}

}  // namespace taviinputmanager
