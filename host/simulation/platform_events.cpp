#include "host/simulation/platform_events.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>

#include "host/simulation/virtual_event_dispatcher.h"

namespace tavi {

namespace {

constexpr char kWithoutGlib[] = "QT_NO_GLIB";  // an environment variable of Qt

std::unique_ptr<QAbstractEventDispatcher> TakeDispatcher() {
  // GLib's dispatcher delivers only some of the events at each call, depending on what else is posted.
  const QByteArray without_glib = qgetenv(kWithoutGlib);
  qputenv(kWithoutGlib, "1");
  int argument_count = 0;
  char* arguments[] = {nullptr};
  const QGuiApplication application(argument_count, arguments);
  if (without_glib.isNull()) {
    qunsetenv(kWithoutGlib);
  } else {
    qputenv(kWithoutGlib, without_glib);
  }
  QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
  dispatcher->setParent(nullptr);  // otherwise the application would delete it
  return std::unique_ptr<QAbstractEventDispatcher>(dispatcher);
}

}  // namespace

PlatformEvents::PlatformEvents() : dispatcher_(TakeDispatcher()) {}

PlatformEvents::~PlatformEvents() = default;

void PlatformEvents::DeliverBy(VirtualEventDispatcher* time) const {
  time->AlsoDeliver([platform = dispatcher_.get()] { platform->processEvents(QEventLoop::AllEvents); });
}

}  // namespace tavi
