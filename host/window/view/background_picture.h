#ifndef HOST_WINDOW_VIEW_BACKGROUND_PICTURE_H_
#define HOST_WINDOW_VIEW_BACKGROUND_PICTURE_H_

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

class QPainter;
class QRectF;

namespace tavi {

// A picture that is drawn in place of the guest's screen.
//
// Main thread.
class BackgroundPicture {
 public:
  // Loads a picture file. Returns the error and changes nothing if that fails.
  QString Read(const QString& file);
  void Clear();

  bool IsEmpty() const { return image_.isNull(); }
  // A message if the guest's display has another aspect ratio; empty if it has the same.
  QString ShapeNote(const QSize& display) const;

  // Keeps the picture's aspect ratio, as large as fits into `area`, centred.
  void Paint(QPainter* painter, const QRectF& area) const;

 private:
  QString name_;
  QImage image_;
  mutable QPixmap scaled_;  // scaled as last painted: the view is painted much more often than it is resized
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_BACKGROUND_PICTURE_H_
