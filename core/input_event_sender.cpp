#include "core/input_event_sender.h"

#include "core/host_functions.h"
#include "core/input_sync_manager.h"
#include "core/line_buffer.h"
#include "core/recorder_offer.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {
namespace {

void Transmit(const LineBuffer& line, int display) {
  int length = 0;
  const char* data = line.ForDisplay(display, &length);
  GetHostFunctions().send_event.load()(data, length);
}

// What is left to do with a line that the host has got: it is mirrored and recorded. The host may send a further line
// from inside any of its functions; that one finishes this one first, so that all see the lines in one order.
class LineUnderWay {
 public:
  LineUnderWay() : outer_(newest) {
    if (outer_) outer_->Finish();
    newest = this;
  }
  LineUnderWay(const LineUnderWay&) = delete;
  LineUnderWay& operator=(const LineUnderWay&) = delete;
  virtual ~LineUnderWay() { newest = outer_; }

  // Each step comes once, whoever gets to it.
  void Finish() {
    if (step_ == Step::kAsk) {
      const bool is_shared = IsShared();
      if (step_ == Step::kAsk) step_ = is_shared ? Step::kMirror : Step::kDone;
    }
    if (step_ == Step::kMirror) {
      step_ = Step::kOffer;
      Mirror();
    }
    if (step_ == Step::kOffer) {
      step_ = Step::kDone;
      Offer();
    }
  }

 private:
  enum class Step { kAsk, kMirror, kOffer, kDone };

  // Whether the line is mirrored and recorded at all.
  virtual bool IsShared() const = 0;
  virtual void Mirror() const = 0;
  virtual void Offer() const = 0;

  static thread_local LineUnderWay* newest;  // of each thread: the end of a replay sends on the replay's

  LineUnderWay* outer_;
  Step step_ = Step::kAsk;
};

thread_local LineUnderWay* LineUnderWay::newest = nullptr;

// `Line` becomes a text only for those who listen.
template <typename Line>
class EventUnderWay : public LineUnderWay {
 public:
  EventUnderWay(const Line& line, int display, const InputManagerCallbacks* callbacks)
      : line_(line), display_(display), callbacks_(callbacks) {}

 private:
  bool IsShared() const override {
    return callbacks_ && callbacks_->IsPrimaryDisplay && callbacks_->IsPrimaryDisplay(display_);
  }
  void Mirror() const override {
    const InputSyncManager* mirror = InputSyncManager::GetInstance();
    if (mirror->IsEventMirrored()) mirror->SyncEvent(line_);
  }
  void Offer() const override {
    if (IsLineRecorded()) OfferEventLine(line_);
  }

  const Line& line_;
  const int display_;
  const InputManagerCallbacks* callbacks_;
};

class TextUnderWay : public LineUnderWay {
 public:
  explicit TextUnderWay(const QString& command) : command_(command) {}

 private:
  bool IsShared() const override { return true; }
  void Mirror() const override { InputSyncManager::GetInstance()->SyncText(command_); }
  void Offer() const override { OfferTextLine(command_); }

  const QString& command_;
};

}  // namespace

InputEventSender* InputEventSender::GetInstance() {
  static InputEventSender instance;
  return &instance;
}

void InputEventSender::SendEvent(const LineBuffer& line, int display) {
  EventUnderWay<LineBuffer> under_way(line, display, callbacks_);
  Transmit(line, display);
  under_way.Finish();
}

void InputEventSender::SendEvent(const QString& command, int display) {
  EventUnderWay<QString> under_way(command, display, callbacks_);
  LineBuffer line;
  Transmit(line.Narrow(command), display);
  under_way.Finish();
}

void InputEventSender::SendText(const QString& command) {
  if (command.isEmpty()) return;  // no newline to replace
  TextUnderWay under_way(command);
  LineBuffer line;
  line.Narrow(command);
  const int length = line.size();
  line.data()[length - 1] = '\0';  // in place of the newline, and counted
  line.Byte('\0');
  GetHostFunctions().send_text.load()(line.data(), length);
  under_way.Finish();
}

}  // namespace taviinputmanager
