// The only exit: every line for the guest passes through here.
#ifndef CORE_INPUT_EVENT_SENDER_H_
#define CORE_INPUT_EVENT_SENDER_H_

#include <atomic>

#include <QString>

#include "core/input_status_manager.h"

namespace taviinputmanager {

struct InputManagerCallbacks;
class LineBuffer;

// Main thread, except the reset at the natural end of a replay, which sends on that replay's thread. No lock, no queue,
// no retry.
class InputEventSender {
 public:
  static InputEventSender* GetInstance() {
    static InputEventSender instance;
    return &instance;
  }

  // Where live input goes.
  int GetLiveDisplay() const { return status_->GetDisplayId(); }
  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }

  // Sends `command` to `display`, prefixed with the display's number. The lines of a primary display are then mirrored
  // and passed to the recorder, in the order in which the host received them, even if it sends lines during a call.
  void SendEvent(const LineBuffer& line, int display);
  void SendEvent(const QString& command, int display);
  // Sends a text line, which has no display; it is always mirrored and passed to the recorder.
  void SendText(const QString& command);

 private:
  InputEventSender() : status_(InputStatusManager::GetInstance()) {}

  const InputStatusManager* const status_;
  std::atomic<InputManagerCallbacks*> callbacks_{nullptr};  // owned by the host
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_EVENT_SENDER_H_
