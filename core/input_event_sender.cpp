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

}  // namespace

InputEventSender* InputEventSender::GetInstance() {
  static InputEventSender instance;
  return &instance;
}

bool InputEventSender::IsPrimary(int display) const {
  const InputManagerCallbacks* callbacks = callbacks_;
  return callbacks && callbacks->IsPrimaryDisplay && callbacks->IsPrimaryDisplay(display);
}

void InputEventSender::SendEvent(const LineBuffer& line, int display) {
  Transmit(line, display);
  if (!IsPrimary(display)) return;
  // A text is made of the line only for those who listen.
  const InputSyncManager* mirror = InputSyncManager::GetInstance();
  if (mirror->IsEventMirrored()) mirror->SyncEvent(line.ToString());
  if (IsLineRecorded()) OfferEventLine(line.ToString());
}

void InputEventSender::SendEvent(const QString& command, int display) {
  LineBuffer line;
  Transmit(line.Narrow(command), display);
  if (!IsPrimary(display)) return;
  InputSyncManager::GetInstance()->SyncEvent(command);
  OfferEventLine(command);
}

void InputEventSender::SendText(const QString& command) {
  if (command.isEmpty()) return;  // no newline to replace
  LineBuffer line;
  line.Narrow(command);
  const int length = line.size();
  line.data()[length - 1] = '\0';  // in place of the newline, and counted
  line.Byte('\0');
  GetHostFunctions().send_text.load()(line.data(), length);

  InputSyncManager::GetInstance()->SyncText(command);
  OfferTextLine(command);
}

}  // namespace taviinputmanager
