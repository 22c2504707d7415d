#include "simulators/macro/macro_async_worker.h"

#include <QTimer>

namespace taviinputmanager {

MacroAsyncWorker::MacroAsyncWorker() : timer_(new QTimer(this)) {
  timer_->setTimerType(Qt::PreciseTimer);
  connect(timer_, &QTimer::timeout, this, &MacroAsyncWorker::TimerOutTime);
}

void MacroAsyncWorker::TimerOutTime() { OnTimer(); }

}  // namespace taviinputmanager
