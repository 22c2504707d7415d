// The only way out: every line for the guest passes here.
#ifndef CORE_INPUT_EVENT_SENDER_H_
#define CORE_INPUT_EVENT_SENDER_H_

#include <atomic>

#include <QString>

#include "core/input_status_manager.h"

namespace taviinputmanager {

struct InputManagerCallbacks;
class LineBuffer;

// Main thread, but for the reset at the natural end of a replay, which sends on that replay's. No lock, no queue, no
// retry.
class InputEventSender {
 public:
  static InputEventSender* GetInstance() {
    static InputEventSender instance;
    return &instance;
  }

  // Where live input goes.
  int GetLiveDisplay() const { return status_->GetDisplayId(); }
  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }

  // Sends `command` to `display` with the display's number in front. A primary display's lines are then mirrored and
  // offered to the recorder, in the order in which the host got them, also where it sends from inside a send.
  void SendEvent(const LineBuffer& line, int display);
  void SendEvent(const QString& command, int display);
  // Sends a text line, which has no display; always mirrored and offered.
  void SendText(const QString& command);

 private:
  InputEventSender() : status_(InputStatusManager::GetInstance()) {}

  const InputStatusManager* const status_;
  std::atomic<InputManagerCallbacks*> callbacks_{nullptr};  // the host's
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_EVENT_SENDER_H_
