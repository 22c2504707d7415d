#include "host/window/recorder.h"

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::RecordStatus;

namespace {

// As the library tells them.
enum Result { kSaved = 0, kNothingWorthSaving = 1 };

QString ProblemOf(const QString& file, int result) {
  if (result == kSaved) return {};
  if (result == kNothingWorthSaving) return QStringLiteral("Nothing was recorded that the guest would notice");
  return QStringLiteral("%1 cannot be written").arg(file);
}

}  // namespace

// The plain functions that the library is given.
struct RecorderFunctions {
  static void Started() { Recorder::GetInstance()->TakeRunning(true); }
  static void Paused() { Recorder::GetInstance()->TakeRunning(false); }
  static void Stopped(const QString& file, int result) { Recorder::GetInstance()->TakeStopped(file, result); }

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

void Recorder::Stop(const QString& file) { taviinputmanager::StopRecord(QString(), file); }

// No file can be opened under an empty name.
void Recorder::Discard() {
  is_discarding_ = true;
  Stop(QString());
  is_discarding_ = false;
}

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

void Recorder::TakeStopped(const QString& file, int result) {
  before_ms_ = RecordedMs();
  running_.invalidate();
  Q_EMIT Changed();
  if (!is_discarding_) Q_EMIT Saved(file, ProblemOf(file, result));
}

}  // namespace tavi
