#include "core/event_handler.h"

#include "core/input_event_sender.h"
#include "core/line_buffer.h"

namespace taviinputmanager {

EventHandler::EventHandler() : sender_(InputEventSender::GetInstance()) {}

EventHandler::~EventHandler() = default;

void EventHandler::SendEvent(const LineBuffer& command) { SendEventTo(command, sender_->GetLiveDisplay()); }

void EventHandler::SendEvent(const QString& command) { SendEventTo(command, sender_->GetLiveDisplay()); }

void EventHandler::SendEventTo(const LineBuffer& command, int display) {
  if (!command.isEmpty()) sender_->SendEvent(command, display);
}

void EventHandler::SendEventTo(const QString& command, int display) {
  if (!command.isEmpty()) sender_->SendEvent(command, display);
}

void EventHandler::SendText(const QString& command) {
  if (!command.isEmpty()) sender_->SendText(command);
}

}  // namespace taviinputmanager
