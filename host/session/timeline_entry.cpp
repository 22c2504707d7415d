#include "host/session/timeline_entry.h"

namespace tavi {

QString FormatEntry(const TimelineEntry& entry) {
  using Source = TimelineEntry::Source;
  QString mark;
  if (entry.source == Source::kText) mark = QStringLiteral("text ");
  if (entry.source == Source::kCallback) mark = QStringLiteral("! ");
  return QStringLiteral("%1ms ").arg(entry.ms) + mark + entry.text;
}

QString FormatLine(const TimelineEntry& entry) {
  return FormatEntry(entry).replace(QLatin1Char('\n'), QLatin1String("\\n")) + QLatin1Char('\n');
}

}  // namespace tavi
