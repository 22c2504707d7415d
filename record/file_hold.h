// Keeping a file as it is while it is replayed.
#ifndef RECORD_FILE_HOLD_H_
#define RECORD_FILE_HOLD_H_

#include <QtGlobal>

class QString;

namespace taviinputmanager {

// An open file of the system.
using FileHandle = qintptr;
constexpr FileHandle kNoFile = -1;

// Opens a file for reading in a way that keeps writers and deletion away as far as the platform goes: on Windows nobody
// can open it for writing or delete it; elsewhere it carries a shared lock, which those heed who ask for locks. kNoFile
// when it cannot be opened.
FileHandle HoldFile(const QString& path);
void ReleaseFile(FileHandle file);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_HOLD_H_
