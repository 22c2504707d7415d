// The codes of a key for the library, from an event of any window system.
#ifndef HOST_SESSION_NATIVE_KEY_H_
#define HOST_SESSION_NATIVE_KEY_H_

#include <QtGlobal>

class QKeyEvent;

namespace tavi {

struct NativeKey {
  quint32 scancode = 0;     // Windows scan code, the extended bit as 0x100; 0: not a keyboard key
  quint32 virtual_key = 0;  // Windows virtual key code; never 0 for a key that has a scan code
};

NativeKey NativeKeyOf(const QKeyEvent& event);
// Only the scan code, which needs no search.
quint32 ScanCodeOf(const QKeyEvent& event);

}  // namespace tavi

#endif  // HOST_SESSION_NATIVE_KEY_H_
