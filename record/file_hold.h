// Protects a file from changes while it is replayed.
#ifndef RECORD_FILE_HOLD_H_
#define RECORD_FILE_HOLD_H_

#include <QtGlobal>

class QString;

namespace taviinputmanager {

// An open file of the operating system.
using FileHandle = qintptr;
constexpr FileHandle kNoFile = -1;

// Opens a file for reading and prevents writing and deletion as far as the platform supports it: on Windows nobody can
// open it for writing or delete it; elsewhere it has a shared lock, which only programs that use locks respect. kNoFile
// if it cannot be opened.
FileHandle HoldFile(const QString& path);
void ReleaseFile(FileHandle file);

}  // namespace taviinputmanager

#endif  // RECORD_FILE_HOLD_H_
