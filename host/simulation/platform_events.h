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
  std::unique_ptr<QAbstractEventDispatcher> dispatcher_;  // of the platform
};

}  // namespace tavi

#endif  // HOST_SIMULATION_PLATFORM_EVENTS_H_
