#include "guest/translation/kernel_event.h"

#include "guest/translation/device_description.h"
#include "guest/translation/event_names.h"

namespace taviguest {

void Append(KernelEvents more, KernelEvents* events) {
  if (events->empty()) return events->swap(more);
  events->insert(events->end(), more.begin(), more.end());
}

std::string KernelEventText(const KernelEvent& event) {
  return std::string(WordOfDevice(event.device)) + ' ' + EventTypeText(event.type) + ' ' +
         EventCodeText(event.type, event.code) + ' ' + std::to_string(event.value);
}

}  // namespace taviguest
