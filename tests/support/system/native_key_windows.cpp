#include <windows.h>

#include "keymap/scan_codes.h"
#include "tests/support/system/native_key.h"

namespace tavi {

// MapVirtualKey expects the prefix byte that the keyboard sends before an extended key.
NativeCodes NativeCodesOf(int linux_code) {
  const auto scancode = static_cast<quint32>(tavikeymapmanager::ScanCodeOfLinuxKey(linux_code));
  const quint32 sent = scancode & 0x100U ? 0xE000U | (scancode & 0xFFU) : scancode;
  return {scancode, MapVirtualKeyW(sent, MAPVK_VSC_TO_VK_EX)};
}

}  // namespace tavi
