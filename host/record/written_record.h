// Checks a record that the library was asked to write. The library reports success even if the disk took only part of
// it, so the file itself is checked.
#ifndef HOST_RECORD_WRITTEN_RECORD_H_
#define HOST_RECORD_WRITTEN_RECORD_H_

#include <QString>

#include "taviinputmanager/types.h"

namespace tavi {

// The library's message at the end of a recording.
enum RecordOutcome : int { kRecordSaved = 0, kNothingToSave = 1, kRecordRefused = 2 };

// The error in the record that the library has just written to this file, or an empty string. `info` receives its
// header.
QString WrittenRecordProblem(const QString& file, RecordInfo* info);

}  // namespace tavi

#endif  // HOST_RECORD_WRITTEN_RECORD_H_
