// What a platform tells windows, on virtual time.
#ifndef HOST_SIMULATION_PLATFORM_EVENTS_H_
#define HOST_SIMULATION_PLATFORM_EVENTS_H_

#include <memory>

class QAbstractEventDispatcher;

namespace tavi {

class VirtualEventDispatcher;

// Windows of the platform "offscreen" are told that they are exposed, active or resized by the event dispatcher that
// the platform brings along, and by nobody else. An application on virtual time has another one. So the platform's is
// taken from an application that is made for this and gone at once:
//
//   const PlatformEvents events;  // no application is there yet
//   auto* time = new VirtualEventDispatcher;
//   events.DeliverBy(time);
//   QCoreApplication::setEventDispatcher(time);
//   QGuiApplication app(argc, argv);
//
// It outlives the application. Main thread.
class PlatformEvents {
 public:
  PlatformEvents();
  ~PlatformEvents();
  PlatformEvents(const PlatformEvents&) = delete;
  PlatformEvents& operator=(const PlatformEvents&) = delete;

  // They are delivered with the posted events, and behind those that are there, as Qt's own dispatchers do: what is
  // posted before a dialog opens comes before the dialog is active.
  void DeliverBy(VirtualEventDispatcher* time) const;

 private:
  std::unique_ptr<QAbstractEventDispatcher> dispatcher_;  // the platform's
};

}  // namespace tavi

#endif  // HOST_SIMULATION_PLATFORM_EVENTS_H_
