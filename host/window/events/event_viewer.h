#ifndef HOST_WINDOW_EVENTS_EVENT_VIEWER_H_
#define HOST_WINDOW_EVENTS_EVENT_VIEWER_H_

#include <QString>
#include <QWidget>

class QTableView;

namespace tavi {

class EventLog;

// Lists the host events, the latest at the bottom. It takes no focus, so that the keys still go to the guest.
class EventViewer : public QWidget {
  Q_OBJECT

 public:
  // The viewer owns the log.
  explicit EventViewer(EventLog* log, QWidget* parent = nullptr);

  // The selected rows in the format of a keymap, or the last row that has something for one.
  QString TextForKeymap() const;
  // All rows, the columns separated by tabs.
  QString Text() const;

 private:
  void SizeColumns();

  EventLog* log_;
  QTableView* table_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EVENTS_EVENT_VIEWER_H_
