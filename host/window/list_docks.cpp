#include "host/window/list_docks.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

#include "host/window/dock_folder.h"
#include "host/window/events/event_log.h"
#include "host/window/events/event_viewer.h"
#include "host/window/events/line_log.h"

namespace tavi {

ListDocks::ListDocks(QMainWindow* window, const Mapping* mapping)
    : QObject(window), folder_(new DockFolder(window)), log_(new LineLog) {
  log_dock_ = Add(window, QStringLiteral("log"), log_, Qt::RightDockWidgetArea);
  log_dock_->setWindowTitle(QStringLiteral("Lines for the guest"));
  LogShown()->setText(QStringLiteral("Log"));
  LogShown()->setToolTip(QStringLiteral("Show the lines for the guest"));
  event_dock_ = Add(window, QStringLiteral("events"), new EventViewer(new EventLog(mapping)), Qt::BottomDockWidgetArea);
  event_dock_->setWindowTitle(QStringLiteral("Events of the host"));
  EventsShown()->setText(QStringLiteral("Events"));
  EventsShown()->setToolTip(QStringLiteral("Show each event, what it matched and the lines that it produced"));
  event_dock_->hide();
}

QAction* ListDocks::LogShown() const { return log_dock_->toggleViewAction(); }

QAction* ListDocks::EventsShown() const { return event_dock_->toggleViewAction(); }

QDockWidget* ListDocks::Add(QMainWindow* window, const QString& name, QWidget* content, Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(window);
  dock->setObjectName(name);
  dock->setWidget(content);
  dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  window->addDockWidget(area, dock);
  folder_->Add(dock);
  return dock;
}

}  // namespace tavi
