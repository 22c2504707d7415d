// A timed click of the guest's back key.
#ifndef HANDLERS_TRANSACTION_HANDLER_H_
#define HANDLERS_TRANSACTION_HANDLER_H_

#include "core/event_handler.h"

namespace taviinputmanager {

class TransactionHandler : public EventHandler {
 public:
  static TransactionHandler* GetInstance();

  void doBackAction(int display);

 private:
  TransactionHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_TRANSACTION_HANDLER_H_
