#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QtGui/qtguiglobal.h>

#include "host/simulation/platform_events.h"
#include "host/simulation/virtual_event_dispatcher.h"

// Every event dispatcher under a QGuiApplication calls this function. Qt 5 does not install its header for
// applications, though the library exports it. The platform's own dispatcher, which works for Qt 6, holds events back
// here while a dialog runs a nested loop.
class Q_GUI_EXPORT QWindowSystemInterface {
 public:
  static bool sendWindowSystemEvents(QEventLoop::ProcessEventsFlags flags);
};

namespace tavi {

PlatformEvents::PlatformEvents() = default;

PlatformEvents::~PlatformEvents() = default;

void PlatformEvents::DeliverBy(VirtualEventDispatcher* time) const {
  time->AlsoDeliver([] { QWindowSystemInterface::sendWindowSystemEvents(QEventLoop::AllEvents); });
}

}  // namespace tavi
