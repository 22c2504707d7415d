#ifndef HOST_SYSTEM_PLAIN_FILE_H_
#define HOST_SYSTEM_PLAIN_FILE_H_

#include <optional>

#include <QByteArray>
#include <QString>

namespace tavi {

// The text of an error of the C library, such as "No such file or directory". On some systems it differs from the
// system's own errors.
QString ErrorText(int error);

// Why this name is not a file: "it is a folder", or "not a plain file" for a pipe or a device. Empty for a file, and if
// nothing exists.
QString NoFileProblem(const QString& name);

// The content of a file of at most this many bytes, without blocking: nothing if it does not exist, cannot be read or
// is longer, and for pipes and devices, which may block their reader or be endless.
std::optional<QByteArray> ReadPlainFile(const QString& name, qint64 most);

}  // namespace tavi

#endif  // HOST_SYSTEM_PLAIN_FILE_H_
