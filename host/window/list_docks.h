#ifndef HOST_WINDOW_LIST_DOCKS_H_
#define HOST_WINDOW_LIST_DOCKS_H_

#include <QObject>
#include <QString>
#include <QVector>

class QAction;
class QDockWidget;
class QMainWindow;

namespace tavi {

class DockFolder;
class LineLog;
class Mapping;

// The docks with the lines for the guest and the host events, which the user shows and hides.
//
// Main thread.
class ListDocks : public QObject {
  Q_OBJECT

 public:
  // `mapping` says what events match, and outlives the docks.
  ListDocks(QMainWindow* window, const Mapping* mapping);

  LineLog* Log() const { return log_; }
  QDockWidget* LogDock() const { return log_dock_; }
  QDockWidget* EventDock() const { return event_dock_; }
  // Hides them while the window is small.
  DockFolder* Folder() const { return folder_; }
  // Each of them shows and hides its dock.
  QAction* LogShown() const;
  QAction* EventsShown() const;

 private:
  QDockWidget* Add(QMainWindow* window, const QString& name, QWidget* content, Qt::DockWidgetArea area);

  DockFolder* folder_;
  LineLog* log_;
  QDockWidget* log_dock_;
  QDockWidget* event_dock_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_LIST_DOCKS_H_
