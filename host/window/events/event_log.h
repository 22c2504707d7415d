#ifndef HOST_WINDOW_EVENTS_EVENT_LOG_H_
#define HOST_WINDOW_EVENTS_EVENT_LOG_H_

#include <deque>

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>

#include "host/session/host_event.h"
#include "host/session/key_matcher.h"
#include "host/simulation/simulated_host.h"

namespace tavi {

class Mapping;

// The latest host events, with what each matched and the lines that it produced.
//
// Main thread.
class EventLog : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kTime, kEvent, kCode, kKey, kMatch, kSent, kColumnCount };
  static constexpr int kMostRows = 1000;

  // `mapping` is not owned.
  explicit EventLog(const Mapping* mapping, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // While paused, events are left out.
  void SetPaused(bool paused) { paused_ = paused; }
  // Otherwise repeats of the previous event share its row, with their number.
  void SetShowsRepeats(bool shown) { shows_repeats_ = shown; }
  void Clear();

  // The parts of a row that an item of a keymap can use; empty if there is none.
  QString KeymapText(int row) const;
  // The last row with something for a keymap; -1 if there is none.
  int LastForKeymap() const;
  // A row as text, its columns separated by tabs.
  QString RowText(int row) const;

 private:
  struct Row {
    qint64 ms = 0;
    HostEvent event;
    QString match;
    QStringList lines;      // the first lines that were sent during the event
    int further_lines = 0;  // the number of other lines that were sent during it
    int later_lines = 0;    // the number of lines that came before the next event, or before input was released
    int count = 1;          // the number of events merged into this row
  };

  void Begin(const HostEvent& event);
  void End();
  void TakeEntry(const TimelineEntry& entry);
  void TakeKeymaps();
  void Append(const Row& row);
  QString MatchText(const HostEvent& event);
  QString Text(const Row& row, int column) const;

  const Mapping* mapping_;
  KeyMatcher matcher_;
  std::deque<Row> rows_;
  Row current_;
  bool is_inside_ = false;  // of the event that the library is handling
  bool is_counting_later_ = false;
  bool paused_ = false;
  bool shows_repeats_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EVENTS_EVENT_LOG_H_
