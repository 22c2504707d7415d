#include "host/picture/timeline_picture.h"

#include <algorithm>

#include <QColor>
#include <QStringList>
#include <QVector>

#include "host/look/theme.h"
#include "host/picture/svg_writer.h"
#include "host/picture/timeline_chart.h"

namespace tavi {

using Group = ChartLane::Group;

namespace {

// User units; a viewer shows them as pixels.
constexpr double kMargin = 24;
constexpr double kHeader = 66;
constexpr double kNames = 150;     // left of the axis
constexpr double kAxis = 1000;     // its length
constexpr double kOverhang = 110;  // for the text after the last bar
constexpr double kLane = 24;
constexpr double kGroupGap = 26;
constexpr double kBar = 14;
constexpr double kLetter = 6.4;  // width of a character in small print, at most
constexpr double kSmallestTickStep = 1.5;
constexpr double kSmallestBarStep = 4;
constexpr double kNarrowestBar = 2.5;
constexpr int kLongestName = 21;
constexpr int kMostTicks = 12;
constexpr int kLongTimeMs = 10000;  // from here on the axis is in seconds

constexpr char kInk[] = "#202124";
constexpr char kSoftInk[] = "#5f6368";
constexpr char kGridInk[] = "#e3e5e8";
constexpr char kInputInk[] = "#44597a";
constexpr char kGuestInk[] = "#00796b";
constexpr char kHostInk[] = "#8e24aa";

QString Number(double value) { return SvgWriter::Number(value); }

QString TitleOf(Group group) {
  switch (group) {
    case Group::kInput: return QStringLiteral("What the player does");
    case Group::kGuest: return QStringLiteral("What the guest gets");
    case Group::kHost: return QStringLiteral("What the host is told");
  }
  return {};
}

QString ColourOf(const ChartLane& lane) {
  if (lane.slot >= 0) return theme::SlotColor(lane.slot).darker(150).name();
  if (lane.group == Group::kInput) return QLatin1String(kInputInk);
  return lane.group == Group::kGuest ? QLatin1String(kGuestInk) : QLatin1String(kHostInk);
}

// 1, 2 or 5 times a power of ten, so that there are at most kMostTicks.
qint64 TickStep(qint64 total_ms) {
  qint64 power = 1;
  for (;;) {
    for (const int factor : {1, 2, 5}) {
      if (total_ms / (factor * power) < kMostTicks) return factor * power;
    }
    power *= 10;
  }
}

QString TimeText(qint64 ms, qint64 total_ms) {
  if (total_ms < kLongTimeMs) return QStringLiteral("%1 ms").arg(ms);
  return QStringLiteral("%1 s").arg(static_cast<double>(ms) / 1000);
}

QString Shortened(const QString& text, int longest) {
  return text.size() <= longest ? text : text.left(longest - 1) + QChar(0x2026);
}

class TimelineWriter {
 public:
  TimelineWriter(const TimelineChart& chart, const QString& title)
      : chart_(chart), total_ms_(std::max<qint64>(1, chart.end_ms())), svg_(TakeLanes(), title), title_(title) {}

  QByteArray Write() {
    const QSizeF page = PageSize();
    svg_.Empty("rect", {{"width", Number(page.width())}, {"height", Number(page.height())}, {"fill", "#ffffff"}});
    WriteHeader();
    WriteAxis();
    double top = LanesTop();
    for (int i = 0; i < lanes_.size(); ++i) {
      if (IsFirstOfGroup(i)) {
        svg_.Text({kMargin, top + kGroupGap - 8}, TitleOf(lanes_[i]->group),
                  {{"font-size", "12"}, {"font-weight", "bold"}, {"fill", kSoftInk}});
        top += kGroupGap;
      }
      WriteLane(*lanes_[i], top + kLane / 2);
      top += kLane;
    }
    if (left_out_ > 0) {
      svg_.Text({kMargin, top + 18}, QStringLiteral("and %1 more lanes").arg(left_out_), {{"fill", kSoftInk}});
    }
    return svg_.Finish();
  }

 private:
  // Sorts the lanes by group, contacts first and by number, and drops the excess ones; returns the size of the page.
  QSizeF TakeLanes() {
    for (const ChartLane& lane : chart_.lanes()) lanes_.append(&lane);
    const auto key = [](const ChartLane* lane) {
      const int finger = lane->slot >= 0 ? lane->slot : kMostLanes;
      return std::make_pair(static_cast<int>(lane->group), finger);
    };
    std::stable_sort(lanes_.begin(), lanes_.end(),
                     [&](const ChartLane* a, const ChartLane* b) { return key(a) < key(b); });
    left_out_ = std::max<int>(0, lanes_.size() - kMostLanes);
    lanes_.resize(lanes_.size() - left_out_);
    return PageSize();
  }

  bool IsFirstOfGroup(int index) const { return index == 0 || lanes_[index - 1]->group != lanes_[index]->group; }

  double LanesTop() const { return kMargin + kHeader + 14; }
  double LanesBottom() const {
    double bottom = LanesTop() + lanes_.size() * kLane;
    for (int i = 0; i < lanes_.size(); ++i) bottom += IsFirstOfGroup(i) ? kGroupGap : 0;
    return bottom;
  }

  QSizeF PageSize() const {
    const double note = left_out_ > 0 ? kLane : 0;
    return {kMargin + kNames + kAxis + kOverhang + kMargin, LanesBottom() + note + kMargin};
  }

  double Place(qint64 ms) const {
    return kMargin + kNames + kAxis * static_cast<double>(ms) / static_cast<double>(total_ms_);
  }

  void WriteHeader() {
    svg_.Text({kMargin, kMargin + 14}, title_, {{"font-size", "18"}, {"font-weight", "bold"}, {"fill", kInk}});
    const QString facts = QStringLiteral("%1, %2 commands of input, %3 lines for the guest")
                              .arg(TimeText(chart_.end_ms(), chart_.end_ms()))
                              .arg(chart_.input_count())
                              .arg(chart_.line_count());
    svg_.Text({kMargin, kMargin + 36}, facts, {{"fill", kSoftInk}});
  }

  void WriteAxis() {
    const double top = kMargin + kHeader;
    for (qint64 ms = 0; ms <= total_ms_; ms += TickStep(total_ms_)) {
      const QString x = Number(Place(ms));
      svg_.Empty("path", {{"d", QStringLiteral("M%1 %2V%3").arg(x, Number(top + 6), Number(LanesBottom()))},
                          {"stroke", kGridInk}});
      svg_.Text({Place(ms), top}, TimeText(ms, total_ms_),
                {{"font-size", "11"}, {"text-anchor", "middle"}, {"fill", kSoftInk}});
    }
  }

  void WriteLane(const ChartLane& lane, double middle) {
    svg_.Text({kMargin + kNames - 12, middle + 4}, Shortened(lane.name, kLongestName),
              {{"font-size", "12"}, {"text-anchor", "end"}, {"fill", kInk}});
    WriteBars(lane, middle);
    WriteMarks(lane, middle);
  }

  // Bars that start too close together to be distinguished are drawn as one.
  void WriteBars(const ChartLane& lane, double middle) {
    for (int i = 0; i < lane.bars.size();) {
      int last = i;
      const double next_start = Place(lane.bars[i].start_ms) + kSmallestBarStep;
      while (last + 1 < lane.bars.size() && Place(lane.bars[last + 1].start_ms) < next_start) ++last;
      const bool has_next = last + 1 < lane.bars.size();
      const double limit = has_next ? Place(lane.bars[last + 1].start_ms) : Place(total_ms_) + kOverhang;
      WriteBar(lane, {i, last}, middle, limit);
      i = last + 1;
    }
  }

  struct Range {
    int first;
    int last;
  };

  // Text is inside if it fits, otherwise after the bar, up to `limit`.
  void WriteBar(const ChartLane& lane, const Range& range, double middle, double limit) {
    const ChartBar& first = lane.bars[range.first];
    const ChartBar& last = lane.bars[range.last];
    const double left = Place(first.start_ms);
    const double right = std::max(Place(last.end_ms), left + kNarrowestBar);
    const bool is_one = range.first == range.last;
    svg_.Open("rect", {{"x", Number(left)},
                       {"y", Number(middle - kBar / 2)},
                       {"width", Number(right - left)},
                       {"height", Number(kBar)},
                       {"rx", "3"},
                       {"fill", ColourOf(lane)},
                       {"fill-opacity", last.is_open ? "0.55" : "0.85"}});
    const QString count = is_one ? QString() : QStringLiteral(", %1 times").arg(range.last - range.first + 1);
    const QString end = last.is_open ? QStringLiteral("the end") : QStringLiteral("%1 ms").arg(last.end_ms);
    svg_.TextElement("title", QStringLiteral("%1: %2 ms to %3%4 %5")
                                  .arg(lane.name, QString::number(first.start_ms), end, count, first.text)
                                  .trimmed());
    svg_.Close();
    if (!is_one || first.text.isEmpty()) return;
    const double width = first.text.size() * kLetter;
    if (width + 8 < right - left && lane.marks.isEmpty()) {
      WriteSmall({left + 5, middle + 4}, first.text, "#ffffff");
    } else if (right + 5 + width < limit) {
      WriteSmall({right + 5, middle + 4}, first.text, kSoftInk);
    }
  }

  void WriteSmall(const QPointF& place, const QString& text, const char* colour) {
    svg_.Text(place, text, {{"font-size", "11"}, {"fill", colour}});
  }

  // Ticks, white on bars, for their moves. Each has its text if there is room before the next.
  void WriteMarks(const ChartLane& lane, double middle) {
    QString ticks;
    double behind = 0;  // the last tick, and its text
    double text_end = 0;
    for (int i = 0; i < lane.marks.size(); ++i) {
      const double x = Place(lane.marks[i].ms);
      if (x < behind + kSmallestTickStep) continue;
      behind = x;
      ticks += QStringLiteral("M%1 %2v%3").arg(Number(x), Number(middle - 4), Number(8));
      text_end = WriteMarkText(lane, i, {x + 5, middle + 4}, text_end);
    }
    if (ticks.isEmpty()) return;
    const bool is_on_bars = !lane.bars.isEmpty();
    svg_.Empty("path", {{"d", ticks},
                        {"stroke", is_on_bars ? QStringLiteral("#ffffff") : ColourOf(lane)},
                        {"stroke-width", is_on_bars ? "1" : "2"},
                        {"fill", "none"}});
  }

  // Returns the end of the text that was written last.
  double WriteMarkText(const ChartLane& lane, int index, const QPointF& place, double text_end) {
    QString text = lane.marks[index].text;
    if (text.isEmpty() || place.x() < text_end) return text_end;
    double room = Place(total_ms_) + kOverhang;
    for (int next = index + 1; next < lane.marks.size(); ++next) {
      if (Place(lane.marks[next].ms) < place.x() - 5 + kSmallestTickStep) continue;  // part of the same tick
      room = Place(lane.marks[next].ms);
      break;
    }
    const int letters = static_cast<int>((room - place.x()) / kLetter);
    if (letters < std::min<int>(4, text.size())) return text_end;
    text = Shortened(text, letters);
    WriteSmall(place, text, kSoftInk);
    return place.x() + text.size() * kLetter;
  }

  const TimelineChart& chart_;
  const qint64 total_ms_;
  QVector<const ChartLane*> lanes_;
  int left_out_ = 0;
  SvgWriter svg_;
  const QString title_;
};

}  // namespace

QByteArray DrawTimeline(const TimelineChart& chart, const QString& title) {
  return TimelineWriter(chart, title).Write();
}

}  // namespace tavi
