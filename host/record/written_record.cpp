#include "host/record/written_record.h"

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

// Its header is read by reading the whole.
QString WrittenRecordProblem(const QString& file, RecordInfo* info) {
  if (taviinputmanager::GetRecordInfo(file, info)) return {};
  return QStringLiteral("it came out short; the disk may be full");
}

}  // namespace tavi
