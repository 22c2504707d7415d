#include "host/window/findings/finding_marks.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QToolTip>

#include "host/look/theme.h"

namespace tavi {

namespace {

constexpr double kRadius = 9;
constexpr double kFlashRadius = 26;
constexpr double kAside = 24;  // left of the item's point, beside its keys
constexpr double kGap = 3;     // between the marks of one item
constexpr int kFlashMs = 1600;
constexpr int kTextHeight = 11;

}  // namespace

FindingMarks::FindingMarks(QWidget* view) : QWidget(view) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  QFont bold = font();
  bold.setPixelSize(kTextHeight);
  bold.setBold(true);
  setFont(bold);
  hide();
  Cover(view);
}

void FindingMarks::Cover(QWidget* view) {
  parentWidget()->removeEventFilter(this);
  setParent(view);
  view->installEventFilter(this);
  resize(view->size());
  raise();
  setVisible(!findings_.isEmpty());
}

void FindingMarks::Show(const QVector<PlacedFinding>& findings) {
  findings_ = findings;
  flash_.stop();
  flashing_.clear();
  setVisible(!findings_.isEmpty());
  update();
}

void FindingMarks::Flash(const QString& label) {
  flashing_ = label;
  flash_.start(kFlashMs, this);
  update();
}

QPointF FindingMarks::PlaceOfMark(const QString& label) const {
  for (int i = 0; i < findings_.size(); ++i) {
    if (findings_[i].label == label) return PlaceOf(i);
  }
  return {};
}

// The marks of one item are stacked, all within the view.
QPointF FindingMarks::PlaceOf(int number) const {
  const QPointF point = findings_[number].point;
  int before = 0;
  for (int i = 0; i < number; ++i) before += findings_[i].point == point ? 1 : 0;
  const double x = point.x() * width() - kAside;
  const double y = point.y() * height() - before * (kRadius * 2 + kGap);
  return {qBound(kRadius, x, qMax(kRadius, width() - kRadius)), qBound(kRadius, y, qMax(kRadius, height() - kRadius))};
}

QRectF FindingMarks::PlateOf(int number) const {
  const double text = QFontMetricsF(font()).horizontalAdvance(findings_[number].label);
  QRectF plate(0, 0, qMax(kRadius * 2, text + kRadius), kRadius * 2);
  plate.moveCenter(PlaceOf(number));
  return plate;
}

QString FindingMarks::MessagesAt(const QPointF& place) const {
  QStringList messages;
  for (int i = 0; i < findings_.size(); ++i) {
    if (PlateOf(i).contains(place)) messages += findings_[i].message;
  }
  return messages.join(QLatin1Char('\n'));
}

bool FindingMarks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) resize(parentWidget()->size());
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), MessagesAt(help->pos()), parentWidget());
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void FindingMarks::timerEvent(QTimerEvent* event) {
  if (event->timerId() != flash_.timerId()) return QWidget::timerEvent(event);
  flash_.stop();
  flashing_.clear();
  update();
}

void FindingMarks::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  for (int i = 0; i < findings_.size(); ++i) {
    const QColor color = findings_[i].is_error ? theme::Colors().error : theme::Colors().warning;
    if (findings_[i].label == flashing_) {
      QColor glow = color;
      glow.setAlpha(0x50);
      painter.setPen(QPen(color, 2));
      painter.setBrush(glow);
      const QPointF point(findings_[i].point.x() * width(), findings_[i].point.y() * height());
      painter.drawEllipse(point, kFlashRadius, kFlashRadius);
    }
    painter.setPen(QPen(theme::Colors().backdrop, 1.5));
    painter.setBrush(color);
    painter.drawRoundedRect(PlateOf(i), kRadius, kRadius);
    painter.setPen(theme::Colors().on_lit);
    painter.drawText(PlateOf(i), Qt::AlignCenter, findings_[i].label);
  }
}

}  // namespace tavi
