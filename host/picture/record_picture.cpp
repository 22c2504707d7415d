#include "host/picture/record_picture.h"

#include <algorithm>
#include <utility>

#include <QPair>
#include <QSizeF>

#include "host/picture/svg_writer.h"
#include "host/picture/time_colour.h"
#include "host/record/time_text.h"

namespace tavi {

namespace {

// User units; a viewer shows them as pixels.
constexpr double kMargin = 24;
constexpr double kHeader = 58;
constexpr double kLineHeight = 20;
constexpr double kLongestWidth = 1100;
constexpr double kLongestHeight = 800;
constexpr double kShortestSide = 60;
constexpr double kLegendWidth = 640;
constexpr double kBarHeight = 14;
constexpr int kBarTicks = 4;
constexpr double kDownRadius = 5;
constexpr double kUpRadius = 9;
constexpr double kLabelCell = 18;  // marks closer than this share a label
constexpr int kLabelPieces = 4;
constexpr int kMostParts = 24;

constexpr char kInk[] = "#202124";
constexpr char kSoftInk[] = "#5f6368";
constexpr QSize kDefaultDisplay(1280, 720);

QString Number(double value) { return SvgWriter::Number(value); }

// "1-3, 7": numbers in ascending order.
QString JoinNumbers(const QVector<int>& numbers) {
  QStringList pieces;
  for (int i = 0; i < numbers.size(); ++i) {
    const int first = numbers[i];
    while (i + 1 < numbers.size() && numbers[i + 1] == numbers[i] + 1) ++i;
    pieces += first == numbers[i] ? QString::number(first) : QStringLiteral("%1-%2").arg(first).arg(numbers[i]);
  }
  if (pieces.size() <= kLabelPieces) return pieces.join(QStringLiteral(", "));
  return pieces.mid(0, kLabelPieces).join(QStringLiteral(", ")) + QStringLiteral(" ...");
}

class PictureWriter {
 public:
  explicit PictureWriter(const RecordDrawing& drawing)
      : drawing_(drawing), frame_(FrameOf(DisplaySize())), svg_(PageSize(), drawing.title) {}

  QByteArray Write() {
    const QSizeF page = PageSize();
    svg_.Empty("rect", {{"width", Number(page.width())}, {"height", Number(page.height())}, {"fill", "#ffffff"}});
    WriteHeader();
    WriteFrame();
    WriteContacts();
    WriteLegend();
    return svg_.Finish();
  }

 private:
  static QSizeF FrameOf(const QSizeF& display) {
    return display.scaled(kLongestWidth, kLongestHeight, Qt::KeepAspectRatio)
        .expandedTo({kShortestSide, kShortestSide});
  }

  QSizeF PageSize() const {
    return {std::max(frame_.width(), kLegendWidth) + 2 * kMargin,
            LegendTop() + (LegendLines() + 2) * kLineHeight + kBarHeight + kMargin};
  }

  void Empty(const char* name, SvgWriter::AttributeList attributes) { svg_.Empty(name, attributes); }
  void Text(double x, double y, const QString& text, SvgWriter::AttributeList attributes = {}) {
    svg_.Text({x, y}, text, attributes);
  }

  QSize DisplaySize() const { return drawing_.info.resolution.isEmpty() ? kDefaultDisplay : drawing_.info.resolution; }

  const RecordPaths& Paths() const { return drawing_.paths; }
  qint64 TotalMs() const { return Paths().walk.total_ms; }
  QString ColourAt(qint64 ms) const { return TimeColour(TimeColourIndex(ms, TotalMs())); }
  double LegendTop() const { return kMargin + kHeader + frame_.height() + kMargin; }

  QPointF Place(const QPointF& fraction) const {
    return {kMargin + fraction.x() * frame_.width(), kMargin + kHeader + fraction.y() * frame_.height()};
  }

  void WriteHeader() {
    Text(kMargin, kMargin + 14, drawing_.title, {{"font-size", "18"}, {"font-weight", "bold"}, {"fill", kInk}});
    QStringList facts;
    if (!drawing_.info.package_name.isEmpty()) facts += drawing_.info.package_name;
    facts += QStringLiteral("display %1 x %2").arg(DisplaySize().width()).arg(DisplaySize().height());
    facts += QStringLiteral("plays %1").arg(SecondsText(static_cast<double>(TotalMs())));
    facts += ContactsText();
    Text(kMargin, kMargin + 36, facts.join(QStringLiteral("  |  ")), {{"fill", kSoftInk}});
  }

  QString ContactsText() const {
    const auto& contacts = Paths().contacts;
    const auto held =
        std::count_if(contacts.begin(), contacts.end(), [](const ContactPath& path) { return !path.is_up; });
    QString text = QStringLiteral("%1 contact%2").arg(contacts.size()).arg(contacts.size() == 1 ? "" : "s");
    if (held > 0) text += QStringLiteral(", %1 still down at the end").arg(held);
    return text;
  }

  void WriteFrame() {
    const QPointF corner = Place({0, 0});
    Empty("rect", {{"x", Number(corner.x())},
                   {"y", Number(corner.y())},
                   {"width", Number(frame_.width())},
                   {"height", Number(frame_.height())},
                   {"fill", "#f8f9fa"},
                   {"stroke", "#bdc1c6"}});
  }

  // Paths first, so that they cross out no mark, and numbers last.
  void WriteContacts() {
    for (const ContactPath& path : Paths().contacts) WriteWay(path);
    for (const ContactPath& path : Paths().contacts) WriteMarks(path);
    WriteLabels();
  }

  // A line for each stretch of one colour; the next starts at its end.
  void WriteWay(const ContactPath& path) {
    QStringList corners{CornerText(path.points.first())};
    for (int i = 1; i < path.points.size(); ++i) {
      corners += CornerText(path.points[i]);
      const QString colour = ColourAt(path.points[i].ms);
      if (i + 1 < path.points.size() && ColourAt(path.points[i + 1].ms) == colour) continue;
      Empty("polyline", {{"points", corners.join(QLatin1Char(' '))},
                         {"fill", "none"},
                         {"stroke", colour},
                         {"stroke-width", "3"},
                         {"stroke-linecap", "round"},
                         {"stroke-linejoin", "round"}});
      corners = QStringList{corners.last()};
    }
  }

  QString CornerText(const PathPoint& point) const {
    const QPointF place = Place(point.point);
    return Number(place.x()) + QLatin1Char(',') + Number(place.y());
  }

  void WriteMarks(const ContactPath& path) {
    WriteDot(Place(path.points.first().point), ColourAt(path.points.first().ms));
    if (path.is_up) WriteRing(Place(path.points.last().point), ColourAt(path.up_ms));
  }

  void WriteDot(const QPointF& place, const QString& colour) {
    Empty("circle",
          {{"cx", Number(place.x())}, {"cy", Number(place.y())}, {"r", Number(kDownRadius)}, {"fill", colour}});
  }

  void WriteRing(const QPointF& place, const QString& colour) {
    Empty("circle", {{"cx", Number(place.x())},
                     {"cy", Number(place.y())},
                     {"r", Number(kUpRadius)},
                     {"fill", "none"},
                     {"stroke", colour},
                     {"stroke-width", "2"}});
  }

  // The numbers of all contacts that start at one point, on white so that they are legible over lines.
  void WriteLabels() {
    QMap<QPair<int, int>, QVector<int>> cells;
    const auto& contacts = Paths().contacts;
    for (int i = 0; i < contacts.size(); ++i) {
      const QPointF place = Place(contacts[i].points.first().point);
      cells[{static_cast<int>(place.y() / kLabelCell), static_cast<int>(place.x() / kLabelCell)}].append(i + 1);
    }
    for (const QVector<int>& numbers : std::as_const(cells)) {
      const QPointF place = Place(contacts[numbers.first() - 1].points.first().point);
      const QString label = JoinNumbers(numbers);
      const double x = place.x() + kUpRadius + 3;
      const double y = place.y() - kUpRadius + 2;
      Text(x, y, label, {{"stroke", "#ffffff"}, {"stroke-width", "4"}, {"fill", "#ffffff"}});
      Text(x, y, label, {{"fill", kInk}});
    }
  }

  int LegendLines() const { return 1 + NotesCount() + PartLines(); }
  int PartLines() const { return std::min<int>(Paths().parts.size(), kMostParts + 1); }
  int NotesCount() const { return Notes().size(); }

  QStringList Notes() const {
    QStringList notes;
    QStringList others;
    for (auto it = Paths().not_drawn.begin(); it != Paths().not_drawn.end(); ++it) {
      others += QStringLiteral("%1 %2").arg(it.value()).arg(it.key());
    }
    if (!others.isEmpty()) notes += QStringLiteral("not shown: ") + others.join(QStringLiteral(", "));
    if (Paths().walk.end == WalkResult::End::kLimit) {
      notes += QStringLiteral("only the first %1 steps are shown").arg(kMostDrawnSteps);
    }
    return notes;
  }

  void WriteLegend() {
    double y = LegendTop();
    WriteTimeBar(y);
    y += kBarHeight + 2 * kLineHeight;
    WriteSigns(y);
    for (const QString& note : Notes()) Text(kMargin, y += kLineHeight, note, {{"fill", kSoftInk}});
    for (int i = 0; i < PartLines(); ++i) Text(kMargin, y += kLineHeight, PartText(i), {{"fill", kInk}});
  }

  void WriteTimeBar(double y) {
    const double step = kLegendWidth / kTimeColours;
    for (int i = 0; i < kTimeColours; ++i) {
      Empty("rect", {{"x", Number(kMargin + i * step)},
                     {"y", Number(y)},
                     {"width", Number(step)},
                     {"height", Number(kBarHeight)},
                     {"fill", TimeColour(i)}});
    }
    for (int i = 0; i <= kBarTicks; ++i) {
      const char* anchor = i == 0 ? "start" : i == kBarTicks ? "end" : "middle";
      Text(kMargin + kLegendWidth * i / kBarTicks, y + kBarHeight + 15,
           SecondsText(static_cast<double>(TotalMs()) * i / kBarTicks), {{"text-anchor", anchor}, {"fill", kInk}});
    }
  }

  void WriteSigns(double y) {
    const double middle = y - 4;
    WriteDot({kMargin + kUpRadius, middle}, kInk);
    Text(kMargin + 26, y, QStringLiteral("a finger is put down, with its number"), {{"fill", kInk}});
    WriteRing({kMargin + 290, middle}, kInk);
    Text(kMargin + 306, y, QStringLiteral("it is lifted; no ring: still down at the end"), {{"fill", kInk}});
  }

  QString PartText(int index) const {
    if (index == kMostParts) return QStringLiteral("and %1 more parts").arg(Paths().parts.size() - kMostParts);
    const PartSpan& part = Paths().parts[index];
    const QString name = part.name.isEmpty() ? QStringLiteral("part") : part.name;
    return QStringLiteral("%1. %2: %3 to %4")
        .arg(QString::number(index + 1), name, SecondsText(static_cast<double>(part.start_ms)),
             SecondsText(static_cast<double>(part.end_ms)));
  }

  const RecordDrawing& drawing_;
  const QSizeF frame_;
  SvgWriter svg_;
};

}  // namespace

QByteArray DrawRecord(const RecordDrawing& drawing) { return PictureWriter(drawing).Write(); }

}  // namespace tavi
