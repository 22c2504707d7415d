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

// The remaining steps for a line after the host has received it: mirroring and recording. The host may send another
// line from inside any of its functions; that call finishes this line first, so that every receiver gets the lines in
// the same order.
class LineUnderWay {
 public:
  LineUnderWay(const LineUnderWay&) = delete;
  LineUnderWay& operator=(const LineUnderWay&) = delete;

  virtual void Finish() = 0;

 protected:
  LineUnderWay() = default;
  ~LineUnderWay() { newest = outer_; }

  void Begin() {
    if (outer_) outer_->Finish();
    newest = this;
  }

 private:
  static thread_local LineUnderWay* newest;  // per thread: the end of a replay sends on the replay's

  LineUnderWay* const outer_ = newest;
};

thread_local LineUnderWay* LineUnderWay::newest = nullptr;

// `Line` decides whether a line is mirrored and recorded at all, and does both.
template <typename Line>
class UnderWay final : public LineUnderWay {
 public:
  explicit UnderWay(const Line& line) : line_(line) { Begin(); }

  // Each step is done once, by whichever call gets there first.
  void Finish() override {
    if (step_ == Step::kAsk) {
      const bool is_shared = line_.IsShared();
      if (step_ == Step::kAsk) step_ = is_shared ? Step::kMirror : Step::kDone;
    }
    if (step_ == Step::kMirror) {
      step_ = Step::kOffer;
      line_.Mirror();
    }
    if (step_ == Step::kOffer) {
      step_ = Step::kDone;
      line_.Offer();
    }
  }

 private:
  enum class Step { kAsk, kMirror, kOffer, kDone };

  const Line line_;
  Step step_ = Step::kAsk;
};

// `Text` is converted to a QString only if something uses it.
template <typename Text>
struct EventLine {
  bool IsShared() const { return callbacks && callbacks->IsPrimaryDisplay && callbacks->IsPrimaryDisplay(display); }
  void Mirror() const {
    const InputSyncManager* mirror = InputSyncManager::GetInstance();
    if (mirror->IsEventMirrored()) mirror->SyncEvent(text);
  }
  void Offer() const {
    if (IsLineRecorded()) OfferEventLine(text);
  }

  const Text& text;
  int display;
  const InputManagerCallbacks* callbacks;
};

struct TextLine {
  bool IsShared() const { return true; }
  void Mirror() const { InputSyncManager::GetInstance()->SyncText(text); }
  void Offer() const { OfferTextLine(text); }

  const QString& text;
};

}  // namespace

void InputEventSender::SendEvent(const LineBuffer& line, int display) {
  UnderWay<EventLine<LineBuffer>> under_way({line, display, callbacks_});
  Transmit(line, display);
  under_way.Finish();
}

void InputEventSender::SendEvent(const QString& command, int display) {
  UnderWay<EventLine<QString>> under_way({command, display, callbacks_});
  LineBuffer line;
  Transmit(line.Narrow(command), display);
  under_way.Finish();
}

void InputEventSender::SendText(const QString& command) {
  if (command.isEmpty()) return;  // no newline to replace
  UnderWay<TextLine> under_way({command});
  LineBuffer line;
  line.Narrow(command);
  const int length = line.size();
  line.data()[length - 1] = '\0';  // replaces the newline, and is counted
  line.Byte('\0');
  GetHostFunctions().send_text.load()(line.data(), length);
  under_way.Finish();
}

}  // namespace taviinputmanager
