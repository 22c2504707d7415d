#include "host/uinput/kernel_event.h"

#include <libevdev/libevdev.h>

#include "host/uinput/device_description.h"

namespace tavi {

QString KernelEventText(const KernelEvent& event) {
  const auto type = static_cast<unsigned>(event.type);
  const auto code = static_cast<unsigned>(event.code);
  const char* type_name = libevdev_event_type_get_name(type);
  const char* code_name = libevdev_event_code_get_name(type, code);
  return QStringLiteral("%1 %2 %3 %4")
      .arg(QLatin1String(WordOfDevice(event.device)),
           type_name ? QString::fromLatin1(type_name) : QString::number(type),
           code_name ? QString::fromLatin1(code_name) : QString::number(code), QString::number(event.value));
}

}  // namespace tavi
