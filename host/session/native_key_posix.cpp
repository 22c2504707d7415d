#include <QKeyEvent>

#include "host/session/native_key.h"
#include "keymap/scan_codes.h"
#include "keymapmanager/key_names.h"

namespace tavi {

namespace {

// The library only checks whether a virtual key is known.
constexpr quint32 kSomeVirtualKey = 0xFF;

// On X11 a virtual key is a character of the layout, so the code is that of the key's position.
quint32 VirtualKeyOf(int scancode) {
  const auto key = tavikeymapmanager::KeyFromName(QStringLiteral("Scan %1").arg(scancode));
  const bool is_known = key && key->virtual_key > 0 && key->virtual_key != tavikeymapmanager::kUnsetCode;
  return is_known ? static_cast<quint32>(key->virtual_key) : kSomeVirtualKey;
}

}  // namespace

quint32 ScanCodeOf(const QKeyEvent& event) {
  const int linux_code = static_cast<int>(event.nativeScanCode()) - tavikeymapmanager::kX11KeyOffset;
  return static_cast<quint32>(tavikeymapmanager::ScanCodeOfLinuxKey(linux_code));
}

NativeKey NativeKeyOf(const QKeyEvent& event) {
  const quint32 scancode = ScanCodeOf(event);
  if (scancode == 0) return {};
  return {scancode, VirtualKeyOf(static_cast<int>(scancode))};
}

}  // namespace tavi
