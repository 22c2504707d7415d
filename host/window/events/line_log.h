#ifndef HOST_WINDOW_EVENTS_LINE_LOG_H_
#define HOST_WINDOW_EVENTS_LINE_LOG_H_

#include <deque>

#include <QBasicTimer>
#include <QVector>
#include <QWidget>

#include "host/simulation/simulated_host.h"

class QPlainTextEdit;

namespace tavi {

class EndFollower;

// Lists the lines for the guest and optionally the host's callbacks, with times, the latest at the bottom.
class LineLog : public QWidget {
  Q_OBJECT

 public:
  explicit LineLog(QWidget* parent = nullptr);

  void Add(const TimelineEntry& entry);
  void Clear();
  // As shown, without colours.
  QString Text() const;
  // The same as a timeline, which `tavi guest-uinput --timeline` plays.
  QString Timeline() const;

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Flush();

  void Append(const QVector<TimelineEntry>& entries);

  QPlainTextEdit* text_;
  EndFollower* end_;
  std::deque<TimelineEntry> shown_;
  QVector<TimelineEntry> waiting_;  // shown together at the next timeout: a moving contact makes many lines
  QBasicTimer flushing_;
  bool paused_ = false;
  bool calls_shown_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EVENTS_LINE_LOG_H_
