// A call of the library, with its time.
#ifndef HOST_SESSION_TIMELINE_ENTRY_H_
#define HOST_SESSION_TIMELINE_ENTRY_H_

#include <QString>

namespace tavi {

struct TimelineEntry {
  enum class Source { kLine, kText, kCallback };

  qint64 ms;  // since the timeline's start
  Source source;
  QString text;  // without line end
};

// "8ms 1:KBDRL:158:0", "8ms text TEXT:a", "8ms ! status 2 F".
QString FormatEntry(const TimelineEntry& entry);
// As it is printed, with its line end. Always one line: a line end within a text is written as "
// ".
QString FormatLine(const TimelineEntry& entry);

}  // namespace tavi

#endif  // HOST_SESSION_TIMELINE_ENTRY_H_
