// A keymap as a picture: each key at the point where it acts on the guest's screen, and a list of those without a
// point, as in the window.
#ifndef HOST_PICTURE_KEYMAP_PICTURE_H_
#define HOST_PICTURE_KEYMAP_PICTURE_H_

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

#include "host/picture/overlay_marks.h"

namespace tavi {

struct KeymapDrawing {
  QString title;
  QVector<OverlayMark> marks;
  QSize size;         // of the picture in pixels; letters and keys scale with its shorter side
  QImage background;  // stretched to the picture's size; null: a plain guest screen
};

// Each needs an application object for its fonts. Main thread.
QByteArray DrawKeymapAsSvg(const KeymapDrawing& drawing);
// Empty if there is not enough memory for its pixels.
QByteArray DrawKeymapAsPng(const KeymapDrawing& drawing);

}  // namespace tavi

#endif  // HOST_PICTURE_KEYMAP_PICTURE_H_
