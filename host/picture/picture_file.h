#ifndef HOST_PICTURE_PICTURE_FILE_H_
#define HOST_PICTURE_PICTURE_FILE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// Writes all of a picture or nothing: a file that was there before stays where that fails or is interrupted. Says so as
// `command` ("draw"); returns the exit status.
int WritePicture(const QString& command, const QString& name, const QByteArray& picture);

}  // namespace tavi

#endif  // HOST_PICTURE_PICTURE_FILE_H_
