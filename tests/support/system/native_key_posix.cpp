#include "tests/support/system/native_key.h"

namespace tavi {

// Those of X11, which calls a character of the layout a virtual key: nobody asks for it.
NativeCodes NativeCodesOf(int linux_code) { return {static_cast<quint32>(linux_code + 8), 0}; }

}  // namespace tavi
