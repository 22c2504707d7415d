#include "core/host_functions.h"

namespace taviinputmanager {

HostFunctions& GetHostFunctions() {
  static HostFunctions functions;
  return functions;
}

}  // namespace taviinputmanager
