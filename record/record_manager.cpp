#include "record/record_manager.h"

#include <utility>

#include <QJsonDocument>
#include <QJsonObject>

#include "core/clock.h"
#include "core/line_buffer.h"
#include "core/recorder_offer.h"
#include "record/command_translation.h"
#include "record/record_file_utils.h"
#include "record/record_format.h"
#include "record/record_macro_instruction_store.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

// Identifies the app to the host when the record is played.
QString DetectAppMarker(const QString& package, const QString& app) {
  const QJsonObject params{{kPackage, package}, {kApp, app}};
  const QJsonDocument marker(QJsonObject{{kCmd, QString(kDetectApp)}, {kParams, params}});
  return QString::fromUtf8(marker.toJson(QJsonDocument::Compact));
}

}  // namespace

RecordManager::RecordManager() : pause_time_(Clock::NowMs()) {}

void RecordManager::StartRecord(const QString& package, const QString& app) {
  const QString marker = DetectAppMarker(package, app);
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    status_ = RecordStatus::Recording;
    actions_.Start();
    actions_.Add({0, kTypeVControl, marker, {}, {}});  // before anything that another thread may add
  }
  if (callbacks_) callbacks_->started();
}

void RecordManager::Leave(RecordStatus status) {
  const std::lock_guard<std::mutex> lock(mutex_);
  status_ = status;
}

void RecordManager::PauseRecord() {
  Leave(RecordStatus::Paused);
  pause_time_ = Clock::NowMs();
  if (callbacks_) callbacks_->paused();
}

void RecordManager::ResumeRecord() {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    status_ = RecordStatus::Recording;
    actions_.SkipSince(pause_time_);
  }
  if (callbacks_) callbacks_->resumed();
}

void RecordManager::StopRecord(const QString& package_name, const QString& filename) {
  Leave(RecordStatus::Stopped);
  const QList<RecordAction*> actions = actions_.Take();  // saving calls the host, which may start the next recording
  const int result = RecordFileUtils::GetInstance()->SaveRecord(package_name, filename, actions);
  qDeleteAll(actions);
  if (callbacks_) callbacks_->stopped(filename, result);
}

void RecordManager::AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2) {
  AddAction(kTypeVControl, data, extra1, extra2);
}

void RecordManager::AddAction(const QString& type, const QString& data, const QString& extra1, const QString& extra2) {
  Add(Action(new RecordAction{0, type, data, extra1, extra2}));
}

void RecordManager::Add(Action action) {
  if (action->data.isEmpty()) return;
  const std::lock_guard<std::mutex> lock(mutex_);
  if (GetStatus() == RecordStatus::Recording) actions_.Add(std::move(action));
}

void RecordManager::OnEventCommand(const QString& command) {
  if (macro_recording_ || command.isEmpty()) return;
  auto action = std::make_unique<RecordAction>();
  if (TranslateEventCommand(command, action.get())) Add(std::move(action));
}

void RecordManager::OnEventLine(QLatin1String line) {
  if (macro_recording_ || line.isEmpty()) return;
  auto action = std::make_unique<RecordAction>();
  if (TranslateEventLine(line, action.get())) Add(std::move(action));
}

void RecordManager::OnTextCommand(const QString& command) {
  if (command.isEmpty()) return;
  auto action = std::make_unique<RecordAction>();
  if (TranslateTextCommand(command, action.get())) Add(std::move(action));
}

void RecordManager::StartRecordMacroInstruction(const QString& name) {
  macro_recording_ = true;
  macro_actions_.Start();
  mouse_move_counter_ = 0;
  RecordMacroInstructionStore::GetInstance()->StartInstruction(name);
}

void RecordManager::StopRecordMacroInstruction(const QString& name) {
  mouse_move_counter_ = 0;
  macro_recording_ = false;
  RecordMacroInstructionStore::GetInstance()->StoreInstruction(name, macro_actions_.Actions());
}

// A line is recorded without its line end.

void OfferEventLine(const LineBuffer& line) {
  if (IsLineRecorded()) RecordManager::GetInstance()->OnEventLine(line.WithoutEnd());
}

void OfferEventLine(const QString& line) {
  if (IsLineRecorded()) RecordManager::GetInstance()->OnEventCommand(line.left(line.size() - 1));
}

void OfferTextLine(const QString& line) {
  if (IsLineRecorded()) RecordManager::GetInstance()->OnTextCommand(line.left(line.size() - 1));
}

bool IsLineRecorded() { return RecordManager::GetInstance()->GetStatus() == RecordStatus::Recording; }

}  // namespace taviinputmanager
