#include "host/picture/svg_paint_device.h"

#include <cmath>

#include <QBuffer>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "host/picture/svg_writer.h"

namespace tavi {

namespace {

constexpr int kDotsPerInch = 96;  // relative to a user unit
constexpr double kMillimetresPerInch = 25.4;

// At most two decimals: the corners of small letters are close together.
QString Coordinate(double value) {
  QString text = QString::number(value, 'f', 2);
  while (text.endsWith(QLatin1Char('0'))) text.chop(1);
  if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString PointText(const QPainterPath::Element& element) {
  return Coordinate(element.x) + QLatin1Char(' ') + Coordinate(element.y);
}

// "M1 2L3 4C...": the data of a path.
QString PathData(const QPainterPath& path) {
  QString data;
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element element = path.elementAt(i);
    switch (element.type) {
      case QPainterPath::MoveToElement: data += QLatin1Char('M'); break;
      case QPainterPath::LineToElement: data += QLatin1Char('L'); break;
      case QPainterPath::CurveToElement: data += QLatin1Char('C'); break;
      case QPainterPath::CurveToDataElement: data += QLatin1Char(' '); break;
    }
    data += PointText(element);
  }
  return data;
}

const char* FillRuleOf(const QPainterPath& path) { return path.fillRule() == Qt::WindingFill ? "nonzero" : "evenodd"; }

class SvgPaintEngine : public QPaintEngine {
 public:
  explicit SvgPaintEngine(SvgWriter* writer)
      : QPaintEngine(PrimitiveTransform | PixmapTransform | AlphaBlend | PainterPaths | Antialiasing | BrushStroke |
                     ConstantOpacity),
        writer_(writer) {}

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }

  void updateState(const QPaintEngineState& state) override {
    const DirtyFlags dirty = state.state();
    if (dirty & (DirtyClipPath | DirtyClipRegion | DirtyClipEnabled)) TakeClip();
  }

  void drawPath(const QPainterPath& path) override { WritePath(path, path.fillRule()); }

  using QPaintEngine::drawPolygon;
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
    QPainterPath path;
    QPolygonF corners;
    for (int i = 0; i < count; ++i) corners.append(points[i]);
    path.addPolygon(corners);
    if (mode == PolylineMode) return WriteStroke(path);
    path.closeSubpath();
    WritePath(path, mode == OddEvenMode ? Qt::OddEvenFill : Qt::WindingFill);
  }

  void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override {
    QByteArray png;
    QBuffer buffer(&png);
    pixmap.copy(part.toAlignedRect()).save(&buffer, "PNG");
    const QRectF mapped = state->transform().mapRect(place);
    writer_->Empty("image", {{"x", Coordinate(mapped.x())},
                             {"y", Coordinate(mapped.y())},
                             {"width", Coordinate(mapped.width())},
                             {"height", Coordinate(mapped.height())},
                             {"preserveAspectRatio", "none"},
                             {"href", QStringLiteral("data:image/png;base64,") + QLatin1String(png.toBase64())}});
  }

 private:
  void WritePath(QPainterPath path, Qt::FillRule rule) {
    path.setFillRule(rule);
    if (state->brush().style() != Qt::NoBrush) WriteFill(path);
    if (state->pen().style() != Qt::NoPen) WriteStroke(path);
  }

  void WriteFill(const QPainterPath& path) {
    const QColor color = state->brush().color();
    WriteElement(path, {{"fill", color.name()}, {"fill-opacity", Opacity(color)}, {"fill-rule", FillRuleOf(path)}});
  }

  // Its width scales with the painter's units.
  void WriteStroke(const QPainterPath& path) {
    const QPen pen = state->pen();
    const QColor color = pen.color();
    const double width = qMax(1.0, pen.widthF()) * Scale();
    const bool is_round = pen.joinStyle() == Qt::RoundJoin;
    WriteElement(path, {{"fill", "none"},
                        {"stroke", color.name()},
                        {"stroke-opacity", Opacity(color)},
                        {"stroke-width", Coordinate(width)},
                        {"stroke-linejoin", is_round ? "round" : "miter"},
                        {"stroke-dasharray", DashText(pen, width)}});
  }

  void WriteElement(const QPainterPath& path, SvgWriter::AttributeList attributes) {
    writer_->Open("path", attributes);
    if (!clip_.isEmpty()) writer_->Attribute("clip-path", QStringLiteral("url(#%1)").arg(clip_));
    writer_->Attribute("d", PathData(state->transform().map(path)));
    writer_->Close();
  }

  double Scale() const { return std::sqrt(std::abs(state->transform().determinant())); }
  QString Opacity(const QColor& color) const { return Coordinate(color.alphaF() * state->opacity()); }

  static QString DashText(const QPen& pen, double width) {
    QStringList lengths;
    for (const double length : pen.dashPattern()) lengths += Coordinate(length * width);
    return lengths.isEmpty() ? QStringLiteral("none") : lengths.join(QLatin1Char(' '));
  }

  // A clip is a separate element that others refer to.
  void TakeClip() {
    clip_.clear();
    if (!painter()->hasClipping()) return;
    clip_ = QStringLiteral("clip%1").arg(++clip_count_);
    writer_->Open("clipPath", {{"id", clip_}});
    writer_->Empty("path", {{"d", PathData(state->transform().map(painter()->clipPath()))}});
    writer_->Close();
  }

  SvgWriter* writer_;
  QString clip_;  // the name of the current clip; empty: none
  int clip_count_ = 0;
};

}  // namespace

SvgPaintDevice::SvgPaintDevice(const QSize& size, SvgWriter* writer)
    : size_(size), engine_(std::make_unique<SvgPaintEngine>(writer)) {}

SvgPaintDevice::~SvgPaintDevice() = default;

QPaintEngine* SvgPaintDevice::paintEngine() const { return engine_.get(); }

int SvgPaintDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth: return size_.width();
    case PdmHeight: return size_.height();
    case PdmWidthMM: return qRound(size_.width() * kMillimetresPerInch / kDotsPerInch);
    case PdmHeightMM: return qRound(size_.height() * kMillimetresPerInch / kDotsPerInch);
    case PdmNumColors: return 0x7FFFFFFF;
    case PdmDepth: return 32;
    case PdmDevicePixelRatio: return 1;
    case PdmDevicePixelRatioScaled: return qRound(devicePixelRatioFScale());
    default: return kDotsPerInch;
  }
}

}  // namespace tavi
