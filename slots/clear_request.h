// Has the main thread empty something of its own before it looks at it again.
#ifndef SLOTS_CLEAR_REQUEST_H_
#define SLOTS_CLEAR_REQUEST_H_

#include <atomic>

namespace taviinputmanager {

// The end of a replay, on its thread, empties what only the main thread reads and writes. As the main thread takes the
// request at its next look, nobody sees that it was not done at once, and no look needs a lock.
class ClearRequest {
 public:
  // Any thread.
  void Make() { is_made_.store(true, std::memory_order_release); }
  // Main thread: whether one was made since the last look. Costs a load where none was.
  bool Take() {
    return is_made_.load(std::memory_order_relaxed) && is_made_.exchange(false, std::memory_order_acquire);
  }

 private:
  std::atomic<bool> is_made_{false};
};

}  // namespace taviinputmanager

#endif  // SLOTS_CLEAR_REQUEST_H_
