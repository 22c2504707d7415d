// The library in a fuzz target: on virtual time, with a host without a window.
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

// Singletons cannot be reset, so one library serves all inputs. Finish restores the initial state as far as exports
// can: no keymap, no recording, no replay, no gesture in progress, the initial settings of the host. What stays: the
// time, which continues, and Qt's random numbers, which cannot be seeded again; they only affect the names of virtual
// mice and the random offsets of a replay.
class Session {
 public:
  static Session& Get();

  // Call it after each input.
  void Finish();

  tavi::SimulatedHost& Host();
  tavi::VirtualEventDispatcher& Time() { return *clock_; }

  // Displays of live input are below this one. Lines to others come from a replay or are raw, and may be anything.
  static constexpr int kReplayDisplay = 7;
  static constexpr int kRawDisplay = 8;

  // Moves live input away from `display`, as a change of the display does, waits until timed runs have ended, and
  // checks that nothing is down in the guest and that every line could be parsed.
  void CheckThatNothingStaysDown(int display);

  // A file of this process, in memory if the system has such a folder.
  QString FilePath(const QString& name) const;
  static void WriteFile(const QString& path, const QByteArray& bytes);

 private:
  Session();
  ~Session();

  void EndAll();
  void RestoreHost();
  void Listen();

  tavi::VirtualEventDispatcher* clock_;  // owned by the application
  std::unique_ptr<QGuiApplication> application_;
  QString folder_;
  ModelGuest guest_;
};

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_SESSION_H_
