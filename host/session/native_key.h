// The codes of a key as the library wants them, from the event of whatever window system there is.
#ifndef HOST_SESSION_NATIVE_KEY_H_
#define HOST_SESSION_NATIVE_KEY_H_

#include <QtGlobal>

class QKeyEvent;

namespace tavi {

struct NativeKey {
  quint32 scancode = 0;     // Windows scan code, the extended bit as 0x100; 0: no key of a keyboard
  quint32 virtual_key = 0;  // Windows virtual key code; never 0 for a key that has a scan code
};

NativeKey NativeKeyOf(const QKeyEvent& event);
// The first of the two alone, which takes no search.
quint32 ScanCodeOf(const QKeyEvent& event);

}  // namespace tavi

#endif  // HOST_SESSION_NATIVE_KEY_H_
