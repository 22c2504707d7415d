#include "core/input_event_sender.h"

#include "core/host_functions.h"
#include "core/input_sync_manager.h"
#include "core/line_buffer.h"
#include "core/recorder_offer.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

InputEventSender* InputEventSender::GetInstance() {
  static InputEventSender instance;
  return &instance;
}

void InputEventSender::SendEvent(const QString& command, int display) {
  LineBuffer line;
  line.Number(display).Byte(':').Narrow(command);
  const int length = line.size();
  line.Byte('\0');
  GetHostFunctions().send_event(line.data(), length);

  if (!callbacks_ || !callbacks_->IsPrimaryDisplay || !callbacks_->IsPrimaryDisplay(display)) return;
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
  GetHostFunctions().send_text(line.data(), length);

  InputSyncManager::GetInstance()->SyncText(command);
  OfferTextLine(command);
}

}  // namespace taviinputmanager
