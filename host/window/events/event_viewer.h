#ifndef HOST_WINDOW_EVENTS_EVENT_VIEWER_H_
#define HOST_WINDOW_EVENTS_EVENT_VIEWER_H_

#include <QString>
#include <QWidget>

class QTableView;

namespace tavi {

class EventLog;

// Lists the events of the host, the latest at the bottom. It takes no focus, so that the keys stay the guest's.
class EventViewer : public QWidget {
  Q_OBJECT

 public:
  // The log becomes the viewer's.
  explicit EventViewer(EventLog* log, QWidget* parent = nullptr);

  // What an item of a keymap would have of the selected rows, or of the last row that has something.
  QString TextForKeymap() const;
  // All rows, the columns apart by tabs.
  QString Text() const;

 private:
  void SizeColumns();

  EventLog* log_;
  QTableView* table_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EVENTS_EVENT_VIEWER_H_
