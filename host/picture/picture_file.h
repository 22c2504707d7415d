#ifndef HOST_PICTURE_PICTURE_FILE_H_
#define HOST_PICTURE_PICTURE_FILE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// Writes the whole picture or nothing: an existing file stays unchanged on failure or interruption. "-" is standard
// output. Prints errors as `command` ("draw"); returns the exit status.
int WritePicture(const QString& command, const QString& name, const QByteArray& picture);

// The error in the name that `option` gives to a picture, for commands that draw only SVG; or an empty string. A name
// without a suffix, or with one that belongs to no other kind of picture, is accepted.
QString SvgNameProblem(const QString& option, const QString& name);

}  // namespace tavi

#endif  // HOST_PICTURE_PICTURE_FILE_H_
