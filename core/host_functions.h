// The host's functions that receive the library's lines.
#ifndef CORE_HOST_FUNCTIONS_H_
#define CORE_HOST_FUNCTIONS_H_

#include <atomic>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

// Null until the host sets them. The send functions are not checked for null, the sync functions are. They are set on
// the main thread; a replay that ends reads them on its own thread.
struct HostFunctions {
  std::atomic<InputEventSendFunc> send_event{nullptr};
  std::atomic<InputTextSendFunc> send_text{nullptr};
  std::atomic<InputEventSyncFunc> sync_event{nullptr};
  std::atomic<InputTextSyncFunc> sync_text{nullptr};
};

// The only set in the process.
inline HostFunctions& GetHostFunctions() {
  static HostFunctions functions;
  return functions;
}

}  // namespace taviinputmanager

#endif  // CORE_HOST_FUNCTIONS_H_
