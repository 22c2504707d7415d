// The functions through which lines leave the library.
#ifndef CORE_HOST_FUNCTIONS_H_
#define CORE_HOST_FUNCTIONS_H_

#include "taviinputmanager/types.h"

namespace taviinputmanager {

// Null until the host sets them. The send functions are called without a test, the sync functions after one.
struct HostFunctions {
  InputEventSendFunc send_event = nullptr;
  InputTextSendFunc send_text = nullptr;
  InputEventSyncFunc sync_event = nullptr;
  InputTextSyncFunc sync_text = nullptr;
};

// The one set of the process.
HostFunctions& GetHostFunctions();

}  // namespace taviinputmanager

#endif  // CORE_HOST_FUNCTIONS_H_
