#include "host/simulation/platform_events.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>

#include "host/simulation/virtual_event_dispatcher.h"

namespace tavi {

namespace {

std::unique_ptr<QAbstractEventDispatcher> TakeDispatcher() {
  int argument_count = 0;
  char* arguments[] = {nullptr};
  const QGuiApplication application(argument_count, arguments);
  QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
  dispatcher->setParent(nullptr);  // else the application would take it along
  return std::unique_ptr<QAbstractEventDispatcher>(dispatcher);
}

}  // namespace

PlatformEvents::PlatformEvents() : dispatcher_(TakeDispatcher()) {}

PlatformEvents::~PlatformEvents() = default;

void PlatformEvents::DeliverBy(VirtualEventDispatcher* time) const {
  time->AlsoDeliver([platform = dispatcher_.get()] {
    // A round of glib's is one kind of events.
    while (platform->processEvents(QEventLoop::AllEvents)) {
    }
  });
}

}  // namespace tavi
