#include "host/simulation/window_system_events.h"

#include <QEventLoop>
#include <QtGui/qtguiglobal.h>

// Every event dispatcher under a QGuiApplication calls this one function. Its header is not among those that Qt
// installs for applications, though the library exports it.
class Q_GUI_EXPORT QWindowSystemInterface {
 public:
  static bool sendWindowSystemEvents(QEventLoop::ProcessEventsFlags flags);
};

namespace tavi {

void SendWindowSystemEvents() { QWindowSystemInterface::sendWindowSystemEvents(QEventLoop::AllEvents); }

}  // namespace tavi
