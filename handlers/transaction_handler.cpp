#include "handlers/transaction_handler.h"

namespace taviinputmanager {

TransactionHandler* TransactionHandler::GetInstance() {
  static TransactionHandler instance;
  return &instance;
}

void TransactionHandler::doBackAction(int /*display*/) {}

}  // namespace taviinputmanager
