// Brings what a host asks for on the thread of a replay to the main thread.
#ifndef RECORD_REPLAY_REQUEST_QUEUE_H_
#define RECORD_REPLAY_REQUEST_QUEUE_H_

#include <deque>
#include <functional>
#include <mutex>

#include <QObject>

namespace taviinputmanager {

// Requests are performed on the thread that this object was made on.
class ReplayRequestQueue : public QObject {
  Q_OBJECT

 public:
  using Request = std::function<void()>;

  // Any thread. At once where that is this object's; else when its event loop comes to it: behind everything that was
  // posted to that thread before, and in the order of asking. What is still waiting when the process ends is
  // dropped.
  void Perform(Request request);

 protected:
  // One waiting request.
  void customEvent(QEvent* event) override;

 private:
  Request TakeFirst();

  std::mutex mutex_;
  std::deque<Request> waiting_;  // guarded by mutex_, which is not held while one is performed
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_REQUEST_QUEUE_H_
