#ifndef HOST_WINDOW_VIEW_BACKGROUND_PICTURE_H_
#define HOST_WINDOW_VIEW_BACKGROUND_PICTURE_H_

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

class QPainter;
class QRectF;

namespace tavi {

// A picture of the guest's screen, drawn in its place.
//
// Main thread.
class BackgroundPicture {
 public:
  // Takes the picture of a file. Returns what is wrong, and changes nothing then.
  QString Read(const QString& file);
  void Clear();

  bool IsEmpty() const { return image_.isNull(); }
  // What there is to say where the guest's display has another shape; empty where it has the same.
  QString ShapeNote(const QSize& display) const;

  // In its own shape, as large as fits into `area`, its middle there.
  void Paint(QPainter* painter, const QRectF& area) const;

 private:
  QString name_;
  QImage image_;
  mutable QPixmap scaled_;  // as last painted: the view is drawn much more often than it changes its size
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_BACKGROUND_PICTURE_H_
