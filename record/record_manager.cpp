#include "record/record_manager.h"

#include "core/recorder_offer.h"

namespace taviinputmanager {

RecordManager* RecordManager::GetInstance() {
  static RecordManager instance;
  return &instance;
}

void RecordManager::StartRecord(const QString& /*package*/, const QString& /*app*/) {}

void RecordManager::PauseRecord() {}

void RecordManager::ResumeRecord() {}

void RecordManager::StopRecord(const QString& /*package_name*/, const QString& /*filename*/) {}

void RecordManager::AddVControlCommand(const QString& /*data*/, const QString& /*extra1*/, const QString& /*extra2*/) {}

void RecordManager::StartRecordMacroInstruction(const QString& /*name*/) {}

void RecordManager::StopRecordMacroInstruction(const QString& /*name*/) {}

void RecordManager::OnEventCommand(const QString& /*command*/) {}

void RecordManager::OnTextCommand(const QString& /*command*/) {}

void RecordManager::OnQtInputEvent(QEvent* /*event*/) {}

QStringList RecordManager::GetRecordMacroInstruction(const QString& /*name*/) const { return {}; }

namespace {

// A line is recorded without its end.
bool IsRecording() { return RecordManager::GetInstance()->GetStatus() == RecordStatus::Recording; }

}  // namespace

void OfferEventLine(const QString& line) {
  if (IsRecording()) RecordManager::GetInstance()->OnEventCommand(line.left(line.size() - 1));
}

void OfferTextLine(const QString& line) {
  if (IsRecording()) RecordManager::GetInstance()->OnTextCommand(line.left(line.size() - 1));
}

}  // namespace taviinputmanager
