// Queues a host's requests from the thread of a replay to the main thread.
#ifndef RECORD_REPLAY_REQUEST_QUEUE_H_
#define RECORD_REPLAY_REQUEST_QUEUE_H_

#include <deque>
#include <functional>
#include <mutex>

#include <QObject>

namespace taviinputmanager {

// Requests are performed on the thread that created this object.
class ReplayRequestQueue : public QObject {
  Q_OBJECT

 public:
  using Request = std::function<void()>;

  // Any thread. Performed at once on this object's thread; otherwise when its event loop gets there: after everything
  // that was posted to that thread before, and in the order of the requests. Requests still queued when the process
  // ends are dropped.
  void Perform(Request request);

 protected:
  // A queued request.
  void customEvent(QEvent* event) override;

 private:
  Request TakeFirst();

  std::mutex mutex_;
  std::deque<Request> waiting_;  // guarded by mutex_, which is not locked while a request is performed
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_REQUEST_QUEUE_H_
