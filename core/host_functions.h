// The functions through which lines leave the library.
#ifndef CORE_HOST_FUNCTIONS_H_
#define CORE_HOST_FUNCTIONS_H_

#include <atomic>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

// Null until the host sets them. The send functions are called without a test, the sync functions after one. Set on the
// main thread; a replay that ends reads them on its own.
struct HostFunctions {
  std::atomic<InputEventSendFunc> send_event{nullptr};
  std::atomic<InputTextSendFunc> send_text{nullptr};
  std::atomic<InputEventSyncFunc> sync_event{nullptr};
  std::atomic<InputTextSyncFunc> sync_text{nullptr};
};

// The one set of the process.
inline HostFunctions& GetHostFunctions() {
  static HostFunctions functions;
  return functions;
}

}  // namespace taviinputmanager

#endif  // CORE_HOST_FUNCTIONS_H_
