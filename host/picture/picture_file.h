#ifndef HOST_PICTURE_PICTURE_FILE_H_
#define HOST_PICTURE_PICTURE_FILE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// Writes all of a picture or nothing: a file that was there before stays where that fails or is interrupted. "-" is
// standard output. Says what went wrong as `command` ("draw"); returns the exit status.
int WritePicture(const QString& command, const QString& name, const QByteArray& picture);

// What is wrong with a name that `option` gives to a picture, where SVG alone is drawn; or nothing. A name without a
// suffix, or with one that is of no other kind of picture, is its author's choice.
QString SvgNameProblem(const QString& option, const QString& name);

}  // namespace tavi

#endif  // HOST_PICTURE_PICTURE_FILE_H_
