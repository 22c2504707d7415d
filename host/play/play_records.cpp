#include "host/play/play_records.h"

#include "host/record/record_file.h"
#include "host/session/recorder.h"
#include "host/session/replayer.h"
#include "host/system/whole_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

QString PlayRecords::Record(const QString& file, const QString& app) {
  Recorder* recorder = Recorder::GetInstance();
  if (recorder->Status() != taviinputmanager::RecordStatus::Stopped) {
    return QStringLiteral("a recording is running; \"stop\" ends it");
  }
  const QString problem = TryWholeFile(file);
  if (!problem.isEmpty()) return QStringLiteral("cannot write %1: %2").arg(file, problem);
  target_ = file;
  recorder->Start(app);
  return {};
}

QString PlayRecords::Replay(const QString& file) {
  const QString refusal = RecordRefusal(file);
  if (!refusal.isEmpty()) return QStringLiteral("%1 cannot be read: %2").arg(file, refusal);
  RecordInfo info;
  if (!taviinputmanager::GetRecordInfo(file, &info)) return QStringLiteral("%1 is not a record").arg(file);
  Replayer::GetInstance()->Open(file, info);
  Replayer::GetInstance()->Play({});
  return {};
}

QString PlayRecords::Stop() {
  const Replayer::State state = Replayer::GetInstance()->GetState();
  const bool is_playing = state != Replayer::State::kNone && state != Replayer::State::kFinished;
  if (is_playing) Replayer::GetInstance()->Stop();
  if (Recorder::GetInstance()->HasRecording()) return Save();
  return is_playing ? QString() : QStringLiteral("no recording or replay is running");
}

QString PlayRecords::SaveAtEnd() { return Recorder::GetInstance()->HasRecording() ? Save() : QString(); }

QString PlayRecords::Save() {
  Recorder* recorder = Recorder::GetInstance();
  QString problem = recorder->End();
  if (recorder->KeptFile().isEmpty()) return problem;
  problem = recorder->Save(target_);
  if (problem.isEmpty()) return {};
  return QStringLiteral("%1; the recording was saved as %2").arg(problem, recorder->KeptFile());
}

}  // namespace tavi
