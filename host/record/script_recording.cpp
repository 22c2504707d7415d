#include "host/record/script_recording.h"

#include "host/command_line.h"
#include "host/simulation/simulated_host.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

enum Outcome : int { kSaved = 0, kNothingToSave = 1, kCannotWrite = 2 };

int last_outcome = kSaved;

taviinputmanager::InputRecorderCallbacks MakeTable() {
  const auto ignore = [] {};
  taviinputmanager::InputRecorderCallbacks table;
  table.started = table.paused = table.resumed = ignore;
  table.stopped = [](const QString& /*file*/, int outcome) { last_outcome = outcome; };
  return table;
}

}  // namespace

void StartScriptRecording(const QString& package, int display) {
  static taviinputmanager::InputRecorderCallbacks table = MakeTable();
  taviinputmanager::InitializeRecordCallbacks(&table);
  SimulatedHost::GetInstance()->primary_display = display;
  taviinputmanager::StartRecord(package, package);
}

int SaveScriptRecording(const QString& package, const QString& file) {
  taviinputmanager::StopRecord(package, file);
  if (last_outcome == kSaved) return kExitDone;
  const QString problem = last_outcome == kNothingToSave ? QStringLiteral("not written: there is nothing to record")
                                                         : QStringLiteral("cannot be written");
  PrintError(QStringLiteral("%1: %2\n").arg(file, problem));
  return kExitProblem;
}

}  // namespace tavi
