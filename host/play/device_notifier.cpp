#include "host/play/device_notifier.h"

#include <QEvent>

#include "host/play/play_devices.h"

namespace tavi {

DeviceNotifier::DeviceNotifier(PlayDevices* devices, int file, const QString& path)
    : QSocketNotifier(file, Read), devices_(devices), path_(path) {}

bool DeviceNotifier::event(QEvent* event) {
  if (event->type() != QEvent::SockAct) return QSocketNotifier::event(event);
  const QString path = path_;  // remains valid if this object is deleted
  devices_->Read(path);
  return true;
}

}  // namespace tavi
