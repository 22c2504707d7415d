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

// Commands run in sequence within one call until one pauses; the timer continues with the next.
//
//   kIdle      never used .............. press
//   kPress     press list running ...... end of the list; a release that has a list of its own cuts it short
//   kRelease   release in force ........ end of the list
//   kFinished  ......................... press
//
// The simulator drops a press of a running macro. A release is always handled: in a loop until release it ends that
// loop and nothing more, and the release list is not run.
//
// A command may inject input that comes back here before the command returns: the release of this macro's own key, or a
// reset that discards this worker. All calls share one position in the list, so the outer call continues at once after
// an inner run that pauses. MacroCalls keeps the calls, and stops a list that releases itself endlessly. Lists are
// copied (they share their text) and parsed once; no item is kept after a call.
//
// Main thread. The simulator owns it.
class MacroSequentialTapAsyncWorker : public MacroAsyncWorker {
  Q_OBJECT

 public:
  MacroSequentialTapAsyncWorker();

  void Press(tavikeymapmanager::MacroConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::MacroConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void OnTimer() override;

  // For MacroCalls: runs commands until one pauses, the list ends, or one queues other lists to be run first. Only in
  // the last case it returns true: it continues after them.
  bool Step();

  bool IsRunning() const { return state_ == State::kPress || state_ == State::kRelease; }
  // A list that this worker was pressed with has a loop until release.
  bool HasUntilRelease() const { return has_until_release_; }

  // Ends the macro at once: releases its curve and the points that it pressed one by one, and deletes itself; later, if
  // one of its commands is running. Deleting it without this sends nothing.
  void Discard();

 private:
  static constexpr int kDefaultSleepMs = 8;  // at the start of each list

  enum class State { kPress = 1, kFinished = 4, kRelease = 5, kIdle = 6 };
  using Program = std::shared_ptr<const MacroProgram>;

  void StopList();
  // Parses `commands` into `program`, unless it was parsed from the same commands before.
  static const Program& Read(Program* program, const QStringList& commands);
  void RunList(const Program& program);
  // False if execution pauses.
  bool Obey(const MacroCommand& command, const QString& text);
  bool Click(const MacroPoints& list);
  bool DrawCurve(const QString& list);
  // Execution continues after `ms`; never with a negative value.
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
  Program program_;        // the current one, or none
  Turns lists_;            // a new one when a list starts
  int command_index_ = 0;  // of the next command
  int default_sleep_ = kDefaultSleepMs;
  MacroLoop loop_;
  MacroCurve curve_;
  MacroFingers fingers_;
  MacroInput input_;
  MacroPoints click_points_;  // of the click in progress
  bool has_until_release_ = false;
  bool is_discarded_ = false;
  int depth_ = 0;  // of nested calls
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_SEQUENTIAL_TAP_ASYNC_WORKER_H_
