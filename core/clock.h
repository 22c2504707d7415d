// The only source of time, of pauses and of the pointer.
#ifndef CORE_CLOCK_H_
#define CORE_CLOCK_H_

#include <QtGlobal>

class QPoint;
class QTime;

namespace taviinputmanager {

// Real time, asked from Qt at every call; or the VirtualTime of the main thread's event dispatcher, once one was found.
//
// Threads: NowMs, TimeOfDay and IsVirtual may be called on any thread; the others belong to the main thread, but for
// Sleep in real time, which blocks whoever calls it.
class Clock {
 public:
  // Takes virtual time from the event dispatcher of the application's thread, if that one offers it, and real time
  // otherwise. A dispatcher that goes away is not used any further: real time follows.
  static void FindVirtualTime();
  static bool IsVirtual();

  // Milliseconds since the Unix epoch.
  static qint64 NowMs();
  // Local time; in virtual time that of NowMs in UTC, so that it does not depend on where it runs.
  static QTime TimeOfDay();
  // Blocks the caller for `ms` milliseconds. 0 or less is no pause.
  static void Sleep(int ms);
  // The mouse pointer in screen pixels.
  static QPoint Pointer();
};

}  // namespace taviinputmanager

#endif  // CORE_CLOCK_H_
