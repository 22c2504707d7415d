// A record as a picture: a page of SVG that needs nothing but a viewer of it, and no scripts, fonts or pointers over
// it.
#ifndef HOST_PICTURE_RECORD_PICTURE_H_
#define HOST_PICTURE_RECORD_PICTURE_H_

#include <QByteArray>
#include <QString>

#include "host/record/record_paths.h"
#include "taviinputmanager/types.h"

namespace tavi {

struct RecordDrawing {
  QString title;
  RecordInfo info;
  RecordPaths paths;
};

// UTF-8. The display in the shape that the header tells, the way of each finger in the colours of time, and a legend.
QByteArray DrawRecord(const RecordDrawing& drawing);

}  // namespace tavi

#endif  // HOST_PICTURE_RECORD_PICTURE_H_
