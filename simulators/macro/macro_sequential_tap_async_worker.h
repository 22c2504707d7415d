// Runs the commands of one macro key.
#ifndef SIMULATORS_MACRO_MACRO_SEQUENTIAL_TAP_ASYNC_WORKER_H_
#define SIMULATORS_MACRO_MACRO_SEQUENTIAL_TAP_ASYNC_WORKER_H_

#include <memory>

#include <QString>
#include <QStringList>

#include "core/turns.h"
#include "simulators/macro/macro_async_worker.h"
#include "simulators/macro/macro_curve.h"
#include "simulators/macro/macro_fingers.h"
#include "simulators/macro/macro_input.h"
#include "simulators/macro/macro_loop.h"
#include "simulators/macro/macro_program.h"

namespace taviinputmanager {

// Commands run one behind the other within one call, until one pauses; the timer goes on with the next.
//
//   kIdle      never used .............. press
//   kPress     press list running ...... end of the list; a release that has a list of its own cuts it short
//   kRelease   release in force ........ end of the list
//   kFinished  ......................... press
//
// A press of a running macro is dropped by the simulator. A release is always taken: in a loop until release it ends
// that loop and nothing more, and the release list is not run.
//
// A command may inject input which comes back here before it returns: the release of this macro's own key, or a reset
// that discards this worker. All calls share one place in the list, so an inner run that pauses is carried on by the
// outer one at once. MacroCalls keeps the calls, and gives up a list that releases itself without end. Lists are copied
// (they share their text), and read once for all the times that they run; no item is kept beyond a call.
//
// Main thread. The simulator owns it.
class MacroSequentialTapAsyncWorker : public MacroAsyncWorker {
  Q_OBJECT

 public:
  MacroSequentialTapAsyncWorker();

  void Press(tavikeymapmanager::MacroConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::MacroConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void OnTimer() override;

  // For MacroCalls: runs commands until one pauses, the list ends, or one leaves other lists to be run first. Only then
  // true: it goes on behind them.
  bool Step();

  bool IsRunning() const { return state_ == State::kPress || state_ == State::kRelease; }
  // A list that this worker was pressed with has a loop until release.
  bool HasUntilRelease() const { return has_until_release_; }

  // Ends the macro at once: lifts its curve and the points that it pressed one by one, and deletes itself, later where
  // one of its commands is under way. To delete it without this sends nothing.
  void Discard();

 private:
  static constexpr int kDefaultSleepMs = 8;  // at the start of each list

  enum class State { kPress = 1, kFinished = 4, kRelease = 5, kIdle = 6 };
  using Program = std::shared_ptr<const MacroProgram>;

  void StopList();
  // `commands`, read into `program` unless that is where they were read before.
  static const Program& Read(Program* program, const QStringList& commands);
  void RunList(const Program& program);
  // False when execution pauses.
  bool Obey(const MacroCommand& command, const QString& text);
  bool Click(const MacroPoints& list);
  bool DrawCurve(const QString& list);
  // Execution goes on after `ms`; with a negative time, never.
  bool Pause(int ms);
  void ReleaseAll();
  void Switch(const MacroPoints& list);
  void StartLoop(const MacroCommand& command);
  void StopLoop();
  void SetLastCurveSleep(const QString& argument);

  State state_ = State::kIdle;
  QString key_name_;       // the text of the key of the item last pressed or released
  Program press_program_;  // of the last press
  Program release_program_;
  Program program_;        // the one in progress, or none
  Turns lists_;            // one begins as a list does
  int command_index_ = 0;  // of the next command
  int default_sleep_ = kDefaultSleepMs;
  MacroLoop loop_;
  MacroCurve curve_;
  MacroFingers fingers_;
  MacroInput input_;
  MacroPoints click_points_;  // of the click under way
  bool has_until_release_ = false;
  bool is_discarded_ = false;
  int depth_ = 0;  // of calls that are under way inside each other
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_SEQUENTIAL_TAP_ASYNC_WORKER_H_
