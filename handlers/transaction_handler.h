// A timed click of the guest's back key.
#ifndef HANDLERS_TRANSACTION_HANDLER_H_
#define HANDLERS_TRANSACTION_HANDLER_H_

#include <QTimer>

#include "core/event_handler.h"

namespace taviinputmanager {

// The key is not recorded as held: the release always follows, 8 ms after the press. A second click within that time
// sends its press and delays the release; one release then serves both, on the later display. Main thread.
//
//   click         8 ms
//   press ------- release
//
//   click    5 ms: click       13 ms
//   press -- press ----------- release
class TransactionHandler : public EventHandler {
  Q_OBJECT

 public:
  static TransactionHandler* GetInstance();

  // Goes to `display`, regardless of the current display.
  void doBackAction(int display);

 public Q_SLOTS:
  void doBackTimerOutTime();

 private:
  TransactionHandler();
  ~TransactionHandler() override;

  QTimer back_timer_;  // runs while the key is down
  int pending_display_ = 0;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_TRANSACTION_HANDLER_H_
