#include "host/command/script_recording.h"

#include "host/record/written_record.h"
#include "host/simulation/simulated_host.h"
#include "host/system/console.h"
#include "host/system/whole_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

int last_outcome = kRecordSaved;

// Returns the error, or an empty string.
QString Save(const QString& package, const QString& file) {
  WholeFile whole(file);
  if (!whole.Problem().isEmpty()) return QStringLiteral("cannot be written: ") + whole.Problem();
  taviinputmanager::StopRecord(package, whole.WorkingName());
  if (last_outcome == kNothingToSave) return QStringLiteral("not saved: there is nothing to record");
  RecordInfo info;
  QString problem = WrittenRecordProblem(whole.WorkingName(), &info);
  if (problem.isEmpty() && !whole.Keep()) problem = whole.Problem();
  return problem.isEmpty() ? problem : QStringLiteral("cannot be written: ") + problem;
}

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
  const QString problem = Save(package, file);
  if (problem.isEmpty()) return kExitDone;
  PrintError(QStringLiteral("%1: %2\n").arg(file, problem));
  return kExitProblem;
}

}  // namespace tavi
