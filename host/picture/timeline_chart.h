// The commands of a script and their results, sorted into lanes along one time axis: one lane for each key, contact and
// so on, with bars for states and marks for moments.
#ifndef HOST_PICTURE_TIMELINE_CHART_H_
#define HOST_PICTURE_TIMELINE_CHART_H_

#include <QPointF>
#include <QString>
#include <QVector>

namespace tavi {

struct GuestLine;
struct ScriptCommand;
struct TimelineEntry;

// Times are milliseconds since the start.
struct ChartBar {
  qint64 start_ms = 0;
  qint64 end_ms = 0;
  bool is_open = true;  // not ended yet; in a finished chart: still down at the end
  QString text;         // where a contact is put down and, if it moves, its last position
};

struct ChartMark {
  qint64 ms = 0;
  QString text;  // may be empty
};

struct ChartLane {
  enum class Group {
    kInput,  // the player's input
    kGuest,  // the guest's input
    kHost    // notifications to the host
  };

  Group group = Group::kInput;
  QString name;
  int slot = -1;  // for a contact
  QVector<ChartBar> bars;
  QVector<ChartMark> marks;
};

// Lanes are in the order of their first entry; the drawing code sorts them by group. Not bound to a thread.
class TimelineChart {
 public:
  // Call in order of time, a command before the entries that it causes.
  void AddInput(qint64 ms, const ScriptCommand& command);
  void AddEntry(const TimelineEntry& entry);
  // Ends all open bars; call once, when there are no more entries.
  void Finish(qint64 ms);

  const QVector<ChartLane>& lanes() const { return lanes_; }
  qint64 end_ms() const { return end_ms_; }
  int input_count() const { return input_count_; }  // waits are handled separately
  int line_count() const { return line_count_; }    // for the guest

 private:
  ChartLane* LaneOf(ChartLane::Group group, const QString& name);
  void StartBar(ChartLane* lane, qint64 ms, const QString& text);
  void EndBar(ChartLane* lane, qint64 ms);
  void AddTouchInput(qint64 ms, const ScriptCommand& command);
  void AddLine(qint64 ms, const QString& prefix, const GuestLine& line);
  void AddTouchLine(qint64 ms, const QString& prefix, const GuestLine& line);
  void PutFinger(qint64 ms, const QString& prefix, int slot, const QPointF& point);

  QVector<ChartLane> lanes_;
  qint64 end_ms_ = 0;
  int input_count_ = 0;
  int line_count_ = 0;
};

}  // namespace tavi

#endif  // HOST_PICTURE_TIMELINE_CHART_H_
