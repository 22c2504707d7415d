// A host without a window: provides the data that the library asks for, and logs all its calls with their times.
#ifndef HOST_SIMULATION_SIMULATED_HOST_H_
#define HOST_SIMULATION_SIMULATED_HOST_H_

#include <functional>

#include <QRect>
#include <QString>
#include <QVector>

#include "host/session/timeline_entry.h"
#include "taviinputmanager/callbacks.h"

namespace tavi {

// The library's callbacks are plain functions, so there is one host in a process. Main thread only.
class SimulatedHost {
 public:
  static SimulatedHost* GetInstance();

  // Installs the send functions and initializes the library with `table`. `now` returns the time in ms.
  void Start(std::function<qint64()> now);
  // The times of the following entries count from now.
  void StartTimeline();
  // The calls since the last TakeTimeline.
  QVector<TimelineEntry> TakeTimeline();
  // Logs a call that came through another table. Like the callbacks of this class, it may be called on any thread if
  // there is a listener.
  void Say(const QString& text) { Add(TimelineEntry::Source::kCallback, text); }

  // Gets each entry when it is made, on the thread that made it; then there is no timeline to take. Needed for real
  // replays, which end on a thread of their own.
  std::function<void(const TimelineEntry&)> listener;

  // Runs after each entry is logged, still inside the library's call.
  std::function<void(const TimelineEntry&)> interruption;

  // What the host reports.
  taviinputmanager::WindowGeometry window{0, 0, 1280, 720};
  QRect display{0, 0, 1280, 720};
  QRect touch{0, 0, 1280, 720};
  int rotation = 0;
  bool text_input = false;
  bool escape_back = true;
  int joystick_type = 1;
  int primary_display = -1;  // of all displays; -1: none is mirrored or recorded

  taviinputmanager::InputManagerCallbacks table;

 private:
  template <typename Host>
  friend struct TellingFunctions;

  SimulatedHost();
  static bool IsHeard() { return true; }
  void Add(TimelineEntry::Source source, const QString& text);

  std::function<qint64()> now_;
  qint64 start_ms_ = 0;
  QVector<TimelineEntry> timeline_;
};

}  // namespace tavi

#endif  // HOST_SIMULATION_SIMULATED_HOST_H_
