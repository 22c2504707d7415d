#include "tests/support/system/native_key.h"

namespace tavi {

// X11's codes. Its virtual key is a keysym, which no test reads.
NativeCodes NativeCodesOf(int linux_code) { return {static_cast<quint32>(linux_code + 8), 0}; }

}  // namespace tavi
