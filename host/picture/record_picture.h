// A record as a picture: a page of SVG that needs only a viewer, with no scripts, fonts or hover effects.
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

// UTF-8. Shows the display in the header's aspect ratio, the path of each finger coloured by time, and a legend.
QByteArray DrawRecord(const RecordDrawing& drawing);

}  // namespace tavi

#endif  // HOST_PICTURE_RECORD_PICTURE_H_
