#include "host/window/view/background_picture.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>

#include "host/window/view/guest_menu.h"

namespace tavi {

namespace {

constexpr double kSameShape = 0.01;  // of the aspect ratios: smaller differences make no visible bars

double RatioOf(const QSize& size) { return static_cast<double>(size.width()) / qMax(1, size.height()); }

}  // namespace

QString BackgroundPicture::Read(const QString& file) {
  QImageReader reader(file);
  reader.setAutoTransform(true);  // honours the orientation tag of cameras and phones
  reader.setDecideFormatFromContent(true);
  const QImage image = reader.read();
  if (image.isNull()) return QStringLiteral("%1 cannot be read as a picture: %2").arg(file, reader.errorString());
  name_ = QFileInfo(file).fileName();
  image_ = image;
  scaled_ = QPixmap();
  return {};
}

void BackgroundPicture::Clear() { *this = BackgroundPicture(); }

QString BackgroundPicture::ShapeNote(const QSize& display) const {
  if (IsEmpty() || qAbs(RatioOf(image_.size()) / RatioOf(display) - 1) < kSameShape) return {};
  return QStringLiteral("%1 is %2, but the guest is %3, which has another aspect ratio: it is shown with bars")
      .arg(name_, SizeText(image_.size()), SizeText(display));
}

void BackgroundPicture::Paint(QPainter* painter, const QRectF& area) const {
  const double ratio = painter->device()->devicePixelRatioF();
  const QSize wanted = image_.size().scaled((area.size() * ratio).toSize(), Qt::KeepAspectRatio).expandedTo({1, 1});
  if (scaled_.size() != wanted) {
    scaled_ = QPixmap::fromImage(image_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  QRectF place(QPointF(), QSizeF(wanted) / ratio);
  place.moveCenter(area.center());
  painter->drawPixmap(place, scaled_, QRectF(scaled_.rect()));
}

}  // namespace tavi
