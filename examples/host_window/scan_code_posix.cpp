#include <keymap/scan_codes.h>

#include "scan_code.h"

// Under X11 and Wayland, Qt returns the code of X11.
quint32 WindowsScanCode(const QKeyEvent& event) {
  const int linux_code = static_cast<int>(event.nativeScanCode()) - tavikeymapmanager::kX11KeyOffset;
  return static_cast<quint32>(tavikeymapmanager::ScanCodeOfLinuxKey(linux_code));
}
