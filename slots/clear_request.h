// A request to the main thread to clear data before its next use.
#ifndef SLOTS_CLEAR_REQUEST_H_
#define SLOTS_CLEAR_REQUEST_H_

#include <atomic>

namespace taviinputmanager {

// A replay ends on its own thread, and clears data that only the main thread uses. The main thread takes the request at
// its next access, so the delay is not visible, and no access needs a lock.
class ClearRequest {
 public:
  // Any thread.
  void Make() { is_made_.store(true, std::memory_order_release); }
  // Main thread: whether a request was made since the last check. Costs only a load if there was none.
  bool Take() {
    return is_made_.load(std::memory_order_relaxed) && is_made_.exchange(false, std::memory_order_acquire);
  }

 private:
  std::atomic<bool> is_made_{false};
};

}  // namespace taviinputmanager

#endif  // SLOTS_CLEAR_REQUEST_H_
