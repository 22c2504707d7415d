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

// The latest events of the host, what each matched and what went out because of it.
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

  // While paused, what happens is left out.
  void SetPaused(bool paused) { paused_ = paused; }
  // Otherwise events that repeat the one before take its row, with their number.
  void SetShowsRepeats(bool shown) { shows_repeats_ = shown; }
  void Clear();

  // What of a row an item of a keymap would have; empty where there is nothing.
  QString KeymapText(int row) const;
  // The last row that has something for a keymap; -1 without one.
  int LastForKeymap() const;
  // A row as text, its columns apart by tabs.
  QString RowText(int row) const;

 private:
  struct Row {
    qint64 ms = 0;
    HostEvent event;
    QString match;
    QStringList lines;      // that were sent at once, the first of them
    int further_lines = 0;  // that were sent at once, too
    int later_lines = 0;    // that came before the next event, or before input was lifted
    int count = 1;          // of events that repeat each other
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
  bool is_inside_ = false;  // of an event that the library has at the moment
  bool is_counting_later_ = false;
  bool paused_ = false;
  bool shows_repeats_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EVENTS_EVENT_LOG_H_
