// What a platform sends to windows, on virtual time.
#ifndef HOST_SIMULATION_PLATFORM_EVENTS_H_
#define HOST_SIMULATION_PLATFORM_EVENTS_H_

#include <memory>

class QAbstractEventDispatcher;

namespace tavi {

class VirtualEventDispatcher;

// On the platform "offscreen", windows are exposed, activated and resized only by the event dispatcher of the platform.
// An application on virtual time has another dispatcher, so the platform's is taken from a temporary application:
//
//   const PlatformEvents events;  // before the application
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

  // Delivers the platform's events with the posted events, after those already queued, like Qt's own dispatchers: an
  // event posted before a dialog opens is delivered before the dialog becomes active.
  void DeliverBy(VirtualEventDispatcher* time) const;

 private:
  std::unique_ptr<QAbstractEventDispatcher> dispatcher_;  // of the platform
};

}  // namespace tavi

#endif  // HOST_SIMULATION_PLATFORM_EVENTS_H_
