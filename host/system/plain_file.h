#ifndef HOST_SYSTEM_PLAIN_FILE_H_
#define HOST_SYSTEM_PLAIN_FILE_H_

#include <optional>

#include <QByteArray>
#include <QString>

namespace tavi {

// An error of the C library ("No such file or directory"), which is no error of the system's own everywhere.
QString ErrorText(int error);

// Why what is there under this name is no file: "it is a folder", or "not a plain file" for a pipe or a device. Empty
// for a file, and where there is nothing.
QString NoFileProblem(const QString& name);

// The content of a file of at most so many bytes, at once: nothing where there is none, where it cannot be read or is
// longer, and of pipes and devices, which may keep their reader waiting or have no end.
std::optional<QByteArray> ReadPlainFile(const QString& name, qint64 most);

}  // namespace tavi

#endif  // HOST_SYSTEM_PLAIN_FILE_H_
