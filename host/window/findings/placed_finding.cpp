#include "host/window/findings/placed_finding.h"

#include <utility>

#include <QByteArray>
#include <QList>

#include "host/picture/overlay_marks.h"
#include "host/session/keymap_source.h"

namespace tavi {

namespace km = tavikeymapmanager;
using km::Diagnostic;

namespace {

using Lines = QList<QByteArray>;

int CommonStart(const Lines& a, const Lines& b) {
  int count = 0;
  while (count < a.size() && count < b.size() && a[count] == b[count]) ++count;
  return count;
}

int CommonEnd(const Lines& a, const Lines& b, int start) {
  int count = 0;
  const int most = qMin(a.size(), b.size()) - start;
  while (count < most && a[a.size() - 1 - count] == b[b.size() - 1 - count]) ++count;
  return count;
}

int IndentOf(const QByteArray& line) {
  int indent = 0;
  while (indent < line.size() && line[indent] == ' ') ++indent;
  return indent;
}

// Whether the line starts an item of a list with this indentation.
bool BeginsAnItem(const QByteArray& line, int indent) { return IndentOf(line) == indent && line.mid(indent, 1) == "-"; }

// Maps lines of the changed text to lines of the text before. All count from 1.
class LineMap {
 public:
  LineMap(const Lines& before, const Lines& after)
      : after_(after), before_size_(before.size()), after_size_(after.size()), start_(CommonStart(before, after)) {
    end_ = CommonEnd(before, after, start_);
  }
  // Whether the line belongs to an item that was inserted into a list with this indentation.
  bool IsOfANewItem(int line, int indent) const {
    const bool only_adds = start_ + end_ >= before_size_;
    int last = qMin(line, after_size_);
    while (last > start_ && after_[last - 1].trimmed().isEmpty())
      --last;  // a diagnostic at the end of the file is about the text above it
    if (!only_adds || last > after_size_ - end_) return false;
    for (int i = last; i > start_; --i) {
      if (BeginsAnItem(after_[i - 1], indent)) return true;
    }
    return false;
  }
  int Before(int line) const {
    if (line <= start_) return line;
    if (line > after_size_ - end_) return line - after_size_ + before_size_;
    return qMin(line, qMax(start_ + 1, before_size_ - end_));
  }

 private:
  const Lines& after_;
  int before_size_;
  int after_size_;
  int start_;
  int end_ = 0;
};

bool BeginsAPart(const QByteArray& line) {
  return !line.isEmpty() && ((line[0] >= 'a' && line[0] <= 'z') || (line[0] >= 'A' && line[0] <= 'Z'));
}

// Whether a line is in the list of items, not in another part of the file. If no part starts at the start of a line,
// every line may be.
bool IsAmongItems(const Lines& lines, int line) {
  for (int i = qMin(line, lines.size()) - 1; i >= 0; --i) {
    if (BeginsAPart(lines[i])) return lines[i].startsWith("items");
  }
  return true;
}

// The item that contains a position in the file: the last one that begins before it. -1 if there is none.
int ItemAt(const km::LoadResult& keymap, int line, int column) {
  int found = -1;
  for (int i = 0; i < keymap.item_sources.size(); ++i) {
    const km::ItemSource& item = keymap.item_sources[i];
    if (std::make_pair(item.line, item.column) <= std::make_pair(line, column)) found = i;
  }
  return found;
}

}  // namespace

QVector<PlacedFinding> PlaceFindings(const KeymapSource& source, const QVector<Diagnostic>& findings,
                                     const QString& prefix) {
  const km::LoadResult& keymap = source.InUse();
  const Lines last = source.LastText().split('\n');
  const Lines before = source.TextInUse().split('\n');
  const LineMap map(before, last);
  QVector<PlacedFinding> placed;
  for (int i = 0; i < findings.size(); ++i) {
    if (!IsAmongItems(last, findings[i].line)) continue;
    const int item = ItemAt(keymap, map.Before(findings[i].line), findings[i].column);
    if (item < 0 || item >= keymap.config->items.size()) continue;
    if (map.IsOfANewItem(findings[i].line, IndentOf(before[keymap.item_sources[item].line - 1]))) continue;
    const QPointF point = PlaceOf(*keymap.config->items[item]);
    if (point.isNull()) continue;
    const bool is_error = findings[i].severity == Diagnostic::Severity::kError;
    placed.append({i, prefix + QString::number(placed.size() + 1), is_error, findings[i].message, point});
  }
  return placed;
}

}  // namespace tavi
