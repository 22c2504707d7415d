// The only source of time, pauses and the pointer's position.
#ifndef CORE_CLOCK_H_
#define CORE_CLOCK_H_

#include <QtGlobal>

class QPoint;
class QTime;

namespace taviinputmanager {

// Real time, from Qt at every call; or the VirtualTime of the main thread's event dispatcher, once one was found.
//
// Threads: NowMs, TimeOfDay and IsVirtual may be called on any thread; the others on the main thread, except Sleep in
// real time, which blocks its caller.
class Clock {
 public:
  // Uses virtual time if the event dispatcher of the application's thread provides it, otherwise real time. When that
  // dispatcher is destroyed, real time follows.
  static void FindVirtualTime();
  static bool IsVirtual();

  // Milliseconds since the Unix epoch.
  static qint64 NowMs();
  // Local time; with virtual time that of NowMs in UTC, so that it does not depend on the machine.
  static QTime TimeOfDay();
  // Blocks the caller for `ms` milliseconds. 0 or less does not block.
  static void Sleep(int ms);
  // The mouse pointer in screen pixels.
  static QPoint Pointer();
};

}  // namespace taviinputmanager

#endif  // CORE_CLOCK_H_
