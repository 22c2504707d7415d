// Time for simulators and tests: a clock that moves only when it is told to.
//
// A program that installs an event dispatcher which also implements this interface runs the library without real time:
// Initialize finds it on the main thread's dispatcher by qobject_cast, and from then on the library asks it for the
// present time, the pointer and its blocking pauses, and starts no thread: what would run on a thread of its own runs
// on the main thread, in the same order.
//
// Such a dispatcher keeps these rules:
// - Before each timer it delivers posted events and deferred deletes until all is quiet.
// - Timers fire in the order in which they fall due, equal ones in the order of their (re)starting. After a timeout the
//   due time moves on by the interval, and when that is past, to one interval from now.
// - A timer of 0 ms fires once a pass, and a pass that fired only such timers takes 1 ms.
// - Sleep moves the clock and fires only the timers marked with kWorkerTimerProperty that fall due on the way,
//   delivering nothing posted.
//
// It serves programs without a real window system. Windows under a real display run on the real clock.
#ifndef TAVIINPUTMANAGER_VIRTUAL_TIME_H_
#define TAVIINPUTMANAGER_VIRTUAL_TIME_H_

#include <QObject>
#include <QPoint>

namespace taviinputmanager {

class VirtualTime {
 public:
  VirtualTime() = default;
  VirtualTime(const VirtualTime&) = delete;
  VirtualTime& operator=(const VirtualTime&) = delete;
  virtual ~VirtualTime() = default;

  // Milliseconds since the Unix epoch. Never goes back.
  virtual qint64 NowMs() const = 0;
  // Blocks the caller, which is on the main thread, for `ms` milliseconds.
  virtual void Sleep(unsigned long ms) = 0;
  // The mouse pointer in screen pixels.
  virtual QPoint Pointer() const = 0;
};

// The name of the dynamic property, set to true on the QTimer, by which the library marks the timers that would run on
// a thread of their own. A blocking sleep goes on without the others.
constexpr char kWorkerTimerProperty[] = "taviWorkerTimer";

}  // namespace taviinputmanager

Q_DECLARE_INTERFACE(taviinputmanager::VirtualTime, "taviinputmanager.VirtualTime/1")

#endif  // TAVIINPUTMANAGER_VIRTUAL_TIME_H_
