#include "core/clock.h"

#include <QCursor>
#include <QDateTime>
#include <QThread>
namespace taviinputmanager {
qint64 Clock::NowMs() { return QDateTime::currentMSecsSinceEpoch(); }
QTime Clock::TimeOfDay() { return QTime::currentTime(); }
void Clock::Sleep(int ms) { QThread::msleep(ms); }
QPoint Clock::Pointer() { return QCursor::pos(); }
void Clock::FindVirtualTime() {}
}  // namespace taviinputmanager
