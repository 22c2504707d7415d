#include "host/picture/keymap_overlay.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>

#include "host/look/theme.h"
#include "host/picture/key_cap.h"

namespace tavi {

using Family = OverlayMark::Family;
using Shape = OverlayMark::Shape;

namespace {

constexpr double kTextHeight = 0.022;  // relative to the view's height
constexpr int kSmallestText = 9;       // pixels
constexpr int kLargestText = 18;
constexpr double kLabelSize = 0.85;  // relative to the size of key names
constexpr double kListMargin = 10;
constexpr double kListGap = 4;
constexpr double kKeyGap = 2;         // between two keys of one item
constexpr int kMostSteps = 14;        // by which keys avoid others
constexpr double kStepOfText = 0.8;   // one such step, relative to the height of the text
constexpr double kKeysOnStick = 0.7;  // distance of a stick's keys from its centre, relative to its radius

QFont SizedFont(QFont font, int pixels, bool bold) {
  font.setPixelSize(pixels);
  font.setBold(bold);
  return font;
}

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

// Paints the marks of one view. All positions are in the painter's units.
class MarkPainter {
 public:
  MarkPainter(QPainter* painter, const QSizeF& view, const QRectF& covered)
      : painter_(painter),
        view_(view),
        text_height_(qBound(kSmallestText, qRound(view.height() * kTextHeight), kLargestText)),
        key_font_(SizedFont(painter->font(), text_height_, true)),
        label_font_(SizedFont(painter->font(), qRound(text_height_ * kLabelSize), false)),
        taken_{covered} {}

  // Marks that may be below the keys of others come first.
  void PaintArea(const OverlayMark& mark) {
    const QColor color = ColorOf(mark.family);
    const QPointF center = Place(mark.point);
    painter_->setPen(QPen(Faint(color, 0x90), 1.5, Qt::DashLine));
    painter_->setBrush(Faint(color, 0x12));
    if (mark.radius > 0) painter_->drawEllipse(center, mark.radius * view_.width(), mark.radius * view_.width());
    if (!mark.range.isEmpty()) painter_->drawRoundedRect(RangeOf(mark), 6, 6);
    if (mark.path.size() > 1) PaintPath(mark, center);
  }

  // Four keys around their point. Buttons move out of their way.
  void PaintDirections(const OverlayMark& mark) {
    const QPointF center = Place(mark.point);
    painter_->setFont(key_font_);
    double widest = 0;
    for (const QString& key : mark.keys) widest = qMax(widest, KeyCapSize(*painter_, key).width());
    const double down = qMax(mark.radius * view_.width() * kKeysOnStick, text_height_ * 2.6);
    const double across = qMax(down, (widest + LabelWidth(mark.label)) / 2 + kListGap);
    const QPointF places[] = {{0, -down}, {across, 0}, {0, down}, {-across, 0}};
    for (int i = 0; i < mark.keys.size(); ++i) {
      if (mark.keys[i].isEmpty()) continue;
      taken_.append(PaintKeyCap(painter_, {mark.keys[i], ColorOf(mark.family)}, center + places[i]));
    }
    PaintLabel(mark.label, center);
  }

  // The keys stacked, centred on the point, with the label below.
  void PaintButton(const OverlayMark& mark) {
    if (mark.keys.isEmpty()) return PaintLabel(mark.label, Place(mark.point));
    painter_->setFont(key_font_);
    const QStringList& keys = mark.keys;
    const double height = KeyCapSize(*painter_, QString()).height() + kKeyGap;
    const QPointF point = Place(mark.point);
    const QPointF center = MakeRoom(mark, point, QSizeF(WidestOf(keys, mark.label), height * keys.size()));
    if (center != point) PaintLeader(mark, point, center);
    double middle = center.y() - height * (keys.size() - 1) / 2;
    for (const QString& key : keys) {
      taken_.append(PaintKeyCap(painter_, {key, ColorOf(mark.family)}, {center.x(), middle}));
      middle += height;
    }
    PaintLabel(mark.label, {center.x(), middle - height / 2 + LabelDrop()});
  }

  // Items without a point, one per line, in a corner where they cover none of the others.
  void PaintList(const QVector<OverlayMark>& marks) {
    const QRectF list = PlaceList(ListSize(marks));
    double top = list.top();
    for (const OverlayMark& mark : marks) {
      if (mark.HasPlace()) continue;
      painter_->setFont(key_font_);
      const QSizeF size = KeyCapSize(*painter_, ButtonText(mark));
      const double middle = top + size.height() / 2;
      PaintKeyCap(painter_, {ButtonText(mark), ColorOf(mark.family)}, {list.left() + size.width() / 2, middle});
      const double width = LabelWidth(mark.label);
      PaintLabel(mark.label, {list.left() + size.width() + kListGap * 2 + width / 2, middle});
      top += size.height() + kListGap;
    }
  }

 private:
  QPointF Place(const QPointF& fraction) const { return {fraction.x() * view_.width(), fraction.y() * view_.height()}; }

  QRectF RangeOf(const OverlayMark& mark) const {
    QRectF range(0, 0, mark.range.width() * view_.width(), mark.range.height() * view_.height());
    range.moveCenter(Place(mark.point));
    return range;
  }

  double LabelWidth(const QString& label) const {
    return QFontMetricsF(label_font_, painter_->device()).horizontalAdvance(label);
  }

  QSizeF ListSize(const QVector<OverlayMark>& marks) {
    painter_->setFont(key_font_);
    QSizeF list(0, 0);
    for (const OverlayMark& mark : marks) {
      if (mark.HasPlace()) continue;
      const QSizeF cap = KeyCapSize(*painter_, ButtonText(mark));
      list.setWidth(qMax(list.width(), cap.width() + kListGap * 2 + LabelWidth(mark.label)));
      list.setHeight(list.height() + cap.height() + kListGap);
    }
    return list;
  }

  QRectF PlaceList(const QSizeF& size) const {
    const double right = view_.width() - kListMargin - size.width();
    const double bottom = view_.height() - kListMargin - size.height();
    const QPointF corners[] = {
        {kListMargin, bottom}, {kListMargin, kListMargin}, {right, kListMargin}, {right, bottom}};
    for (const QPointF& corner : corners) {
      const QRectF place(corner, size);
      if (IsFree(place)) return place;
    }
    return {corners[0], size};
  }

  static QString ButtonText(const OverlayMark& mark) {
    QStringList keys = mark.keys;
    keys.removeAll(QString());
    return keys.isEmpty() ? QStringLiteral("\u2013") : keys.join(QStringLiteral(" / "));
  }

  void PaintLabel(const QString& label, const QPointF& center) {
    painter_->setFont(label_font_);
    PaintOutlinedText(painter_, label, center, theme::Colors().label);
    QRectF place(0, 0, LabelWidth(label), text_height_);
    place.moveCenter(center);
    taken_.append(place);
  }

  void PaintPath(const OverlayMark& mark, const QPointF& center) {
    QPolygonF line;
    for (const QPointF& offset : mark.path) line.append(center + Place(offset));
    painter_->setBrush(Qt::NoBrush);
    painter_->drawPolyline(line);
    painter_->setBrush(ColorOf(mark.family));
    painter_->drawEllipse(line.last(), 3, 3);
  }

  double LabelDrop() const { return text_height_ * 0.7; }

  double WidestOf(const QStringList& keys, const QString& label) const {
    double widest = LabelWidth(label);
    for (const QString& key : keys) widest = qMax(widest, KeyCapSize(*painter_, key).width());
    return widest;
  }

  // The nearest position above or below `point` where keys of that size and their label cover nothing; `point` itself
  // if there is none nearby.
  QPointF MakeRoom(const OverlayMark& mark, const QPointF& point, const QSizeF& keys) const {
    for (int step = 0; step <= kMostSteps; ++step) {
      for (const int way : {1, -1}) {
        const QPointF center = point + QPointF(0, way * step * text_height_ * kStepOfText);
        QRectF block(QPointF(), keys);
        block.moveCenter(center);
        block.setBottom(block.bottom() + (mark.label.isEmpty() ? 0 : text_height_));
        if (IsFree(block) && QRectF(QPointF(), view_).contains(block)) return center;
      }
    }
    return point;
  }

  bool IsFree(const QRectF& place) const {
    return std::none_of(taken_.begin(), taken_.end(),
                        [&place](const QRectF& other) { return place.intersects(other); });
  }

  // From the point to the keys that were moved, below what is already drawn.
  void PaintLeader(const OverlayMark& mark, const QPointF& point, const QPointF& center) {
    QRegion open(QRectF(QPointF(), view_).toAlignedRect());
    for (const QRectF& taken : taken_) open -= taken.toAlignedRect();
    painter_->save();
    painter_->setClipRegion(open);
    painter_->setPen(QPen(Faint(ColorOf(mark.family), 0xA0), 1.5));
    painter_->drawLine(point, center);
    painter_->restore();
  }

  QPainter* painter_;
  const QSizeF view_;
  const int text_height_;
  const QFont key_font_;
  const QFont label_font_;
  QVector<QRectF> taken_;  // by keys, labels, and what covers them
};

}  // namespace

QColor ColorOf(Family family) {
  switch (family) {
    case Family::kTap: return theme::Colors().tap;
    case Family::kWalk: return theme::Colors().walk;
    case Family::kView: return theme::Colors().view;
    case Family::kCast: return theme::Colors().cast;
    case Family::kMacro: return theme::Colors().macro;
  }
  return theme::Colors().text;
}

void KeymapOverlay::Paint(QPainter* painter, const QSizeF& view) const {
  painter->save();
  MarkPainter marks(painter, view, covered_);
  for (const OverlayMark& mark : marks_) {
    if (mark.HasPlace()) marks.PaintArea(mark);
  }
  for (const OverlayMark& mark : marks_) {
    if (mark.HasPlace() && mark.shape == Shape::kDirections) marks.PaintDirections(mark);
  }
  for (const OverlayMark& mark : marks_) {
    if (mark.HasPlace() && mark.shape == Shape::kButton) marks.PaintButton(mark);
  }
  marks.PaintList(marks_);
  painter->restore();
}

}  // namespace tavi
