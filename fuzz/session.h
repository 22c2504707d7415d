// The library under a fuzz target: on the virtual clock, with a host that has no window.
#ifndef FUZZ_SESSION_H_
#define FUZZ_SESSION_H_

#include <memory>

#include <QString>

#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/support/model_guest.h"

class QByteArray;
class QGuiApplication;

namespace tavi {
class SimulatedHost;
struct TimelineEntry;
}  // namespace tavi

namespace taviinputmanager::fuzz {

// Singletons cannot be reset, so one library lives on from input to input. Finish brings it back to the same state as
// far as exports can: no keymap, no recording, no replay, no gesture under way, the settings of the host as they were.
// What stays: the time, which goes on, and Qt's random numbers, which cannot be started anew; by these virtual mice are
// named and a replay's positions disturbed, and nothing else.
class Session {
 public:
  static Session& Get();

  // After each input.
  void Finish();

  tavi::SimulatedHost& Host();
  tavi::VirtualEventDispatcher& Time() { return *clock_; }

  // Displays that live input goes to are those below this one. Lines to others are a replay's or raw, and pass as
  // given.
  static constexpr int kReplayDisplay = 7;
  static constexpr int kRawDisplay = 8;

  // Takes live input off `display` as a change of the display does, waits until timed runs are through, and tells that
  // nothing is down in the guest and that every line could be read.
  void CheckThatNothingStaysDown(int display);

  // A file of this process, in memory where the system has such a folder.
  QString FilePath(const QString& name) const;
  static void WriteFile(const QString& path, const QByteArray& bytes);

 private:
  Session();
  ~Session();

  void EndAll();
  void RestoreHost();
  void Listen();

  tavi::VirtualEventDispatcher* clock_;  // the application's
  std::unique_ptr<QGuiApplication> application_;
  QString folder_;
  ModelGuest guest_;
};

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_SESSION_H_
