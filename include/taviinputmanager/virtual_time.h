// Virtual time for simulators and tests: a clock that moves only when the program moves it.
//
// Install an event dispatcher that also implements this interface to run the library without real time. Initialize
// finds the interface on the main thread's dispatcher with qobject_cast. From then on the library uses it for the
// current time, the pointer and blocking sleeps, and starts no threads: what would run on a thread of its own runs on
// the main thread, in the same order.
//
// The dispatcher must follow these rules:
// - Before each timer, deliver posted events and deferred deletes until none are left.
// - Fire timers in the order in which they are due, and timers that are due at the same time in the order in which they
//   were last started. After a timeout, add the interval to the due time. If the result is in the past, the timer is
//   due one interval from now.
// - A timer of 0 ms fires once per pass. A pass that fires only such timers takes 1 ms.
// - Sleep moves the clock and fires only the timers marked with kWorkerTimerProperty that become due meanwhile. It
//   delivers no posted events.
//
// Use it in programs without a real window system. Windows on a real display need the real clock.
#ifndef TAVIINPUTMANAGER_VIRTUAL_TIME_H_
#define TAVIINPUTMANAGER_VIRTUAL_TIME_H_

#include <QObject>
#include <QPoint>

namespace taviinputmanager {

// The interface that the event dispatcher implements.
class VirtualTime {
 public:
  VirtualTime() = default;
  VirtualTime(const VirtualTime&) = delete;
  VirtualTime& operator=(const VirtualTime&) = delete;
  virtual ~VirtualTime() = default;

  // The current time in milliseconds since the Unix epoch. Never decreases.
  virtual qint64 NowMs() const = 0;
  // Blocks the caller, which is on the main thread, for `ms` milliseconds of virtual time.
  virtual void Sleep(unsigned long ms) = 0;
  // The position of the mouse pointer in screen pixels.
  virtual QPoint Pointer() const = 0;
};

// The name of the dynamic property that the library sets to true on each QTimer that would run on a thread of its own.
// Other timers do not fire during a blocking sleep.
constexpr char kWorkerTimerProperty[] = "taviWorkerTimer";

}  // namespace taviinputmanager

Q_DECLARE_INTERFACE(taviinputmanager::VirtualTime, "taviinputmanager.VirtualTime/1")

#endif  // TAVIINPUTMANAGER_VIRTUAL_TIME_H_
