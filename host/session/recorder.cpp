#include "host/session/recorder.h"

#include "host/record/written_record.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::RecordStatus;

// The callbacks for the library.
struct RecorderFunctions {
  static void Started() { Recorder::GetInstance()->TakeRunning(true); }
  static void Paused() { Recorder::GetInstance()->TakeRunning(false); }
  static void Stopped(const QString& /*file*/, int result) { Recorder::GetInstance()->TakeStopped(result); }

  static taviinputmanager::InputRecorderCallbacks* Table() {
    static taviinputmanager::InputRecorderCallbacks table{Started, Paused, Started, Stopped};
    return &table;
  }
};

Recorder* Recorder::GetInstance() {
  static Recorder instance;
  return &instance;
}

Recorder::Recorder() { taviinputmanager::InitializeRecordCallbacks(RecorderFunctions::Table()); }

RecordStatus Recorder::Status() const { return taviinputmanager::GetRecordStatus(); }

void Recorder::Start(const QString& app) {
  before_ms_ = 0;
  taviinputmanager::StartRecord(QString(), app);
}

void Recorder::Pause() { taviinputmanager::PauseRecord(); }

void Recorder::Resume() { taviinputmanager::ResumeRecord(); }

// The file itself shows whether it is complete.
QString Recorder::End() {
  if (Status() == RecordStatus::Stopped) return {};
  auto kept = std::make_unique<KeptRecording>();
  if (kept->File().isEmpty()) return QStringLiteral("The recording continues: no disk has space for it");
  taviinputmanager::StopRecord(QString(), kept->File());
  const bool is_empty = result_ == kNothingToSave;
  const bool is_kept = !is_empty && WrittenRecordProblem(kept->File(), &info_).isEmpty();
  if (is_kept) {
    kept_ = std::move(kept);
  } else {
    kept->Drop();
  }
  Q_EMIT Changed();
  if (is_empty) return QStringLiteral("Nothing was recorded that has an effect in the guest");
  return is_kept ? QString() : QStringLiteral("The recording is lost: no disk has space for it");
}

QString Recorder::Save(const QString& file) {
  if (!kept_) return {};
  const QString problem = kept_->SaveTo(file);
  if (!problem.isEmpty()) return QStringLiteral("%1 cannot be written: %2").arg(file, problem);
  kept_.reset();
  Q_EMIT Saved(file, info_);
  Q_EMIT Changed();
  return {};
}

// A file with an empty name cannot be opened.
void Recorder::Discard() {
  if (Status() != RecordStatus::Stopped) taviinputmanager::StopRecord(QString(), QString());
  if (kept_) kept_->Drop();
  kept_.reset();
  Q_EMIT Changed();
}

bool Recorder::HasRecording() const { return kept_ || Status() != RecordStatus::Stopped; }

QString Recorder::KeptFile() const { return kept_ ? kept_->File() : QString(); }

qint64 Recorder::RecordedMs() const { return before_ms_ + (running_.isValid() ? running_.elapsed() : 0); }

void Recorder::TakeRunning(bool running) {
  before_ms_ = RecordedMs();
  if (running) {
    running_.start();
  } else {
    running_.invalidate();
  }
  Q_EMIT Changed();
}

void Recorder::TakeStopped(int result) {
  result_ = result;
  before_ms_ = RecordedMs();
  running_.invalidate();
}

}  // namespace tavi
