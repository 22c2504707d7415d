// What became of a record that the library was told to write. The library reports success also where the disk took a
// part of it only, so the file itself is looked at.
#ifndef HOST_RECORD_WRITTEN_RECORD_H_
#define HOST_RECORD_WRITTEN_RECORD_H_

#include <QString>

#include "taviinputmanager/types.h"

namespace tavi {

// What the library tells at the end of a recording.
enum RecordOutcome : int { kRecordSaved = 0, kNothingToSave = 1, kRecordRefused = 2 };

// What is wrong with the record that the library has just written into this file, or nothing. `info` gets its header.
QString WrittenRecordProblem(const QString& file, RecordInfo* info);

}  // namespace tavi

#endif  // HOST_RECORD_WRITTEN_RECORD_H_
