#include "handlers/transaction_handler.h"

#include "core/guest_command.h"
#include "core/key_code_converter.h"

namespace taviinputmanager {

namespace {

constexpr int kBackClickMs = 8;  // from press to release

}  // namespace

TransactionHandler* TransactionHandler::GetInstance() {
  static TransactionHandler instance;
  return &instance;
}

TransactionHandler::TransactionHandler() {
  back_timer_.setTimerType(Qt::PreciseTimer);
  connect(&back_timer_, &QTimer::timeout, this, &TransactionHandler::doBackTimerOutTime);
}

TransactionHandler::~TransactionHandler() = default;

void TransactionHandler::doBackAction(int display) {
  pending_display_ = display;
  back_timer_.start(kBackClickMs);
  SendEventTo(guest_command::KeyPress(kBackCode), display);
}

void TransactionHandler::doBackTimerOutTime() {
  back_timer_.stop();
  SendEventTo(guest_command::KeyRelease(kBackCode), pending_display_);
}

}  // namespace taviinputmanager
