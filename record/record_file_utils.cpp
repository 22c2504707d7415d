#include "record/record_file_utils.h"

namespace taviinputmanager {

RecordFileUtils* RecordFileUtils::GetInstance() {
  static RecordFileUtils instance;
  return &instance;
}

bool RecordFileUtils::GetRecordInfo(const QString& /*file*/, RecordInfo* /*info*/) { return false; }

void RecordFileUtils::GetScriptAppAndPackage(const QString& /*file*/, QString& /*app*/, QString& /*package*/) {}

bool RecordFileUtils::MergeRecord(const QString& /*file*/, const QVector<MergeParam>& /*params*/) { return false; }

void RecordFileUtils::UpdateRecordTimestamp(const QString& /*file*/) {}

}  // namespace taviinputmanager
