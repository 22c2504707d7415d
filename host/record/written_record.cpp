#include "host/record/written_record.h"

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

// Reading the header requires reading the whole file.
QString WrittenRecordProblem(const QString& file, RecordInfo* info) {
  if (taviinputmanager::GetRecordInfo(file, info)) return {};
  return QStringLiteral("it was truncated; the disk may be full");
}

}  // namespace tavi
