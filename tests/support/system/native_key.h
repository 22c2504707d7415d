// Key events like those of this platform's window system.
#ifndef TESTS_SUPPORT_SYSTEM_NATIVE_KEY_H_
#define TESTS_SUPPORT_SYSTEM_NATIVE_KEY_H_

#include <QKeyEvent>
#include <QString>

namespace tavi {

struct NativeCodes {
  quint32 scancode;
  quint32 virtual_key;
};

// The codes in an event of this key.
NativeCodes NativeCodesOf(int linux_code);

inline QKeyEvent NativeKeyEvent(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, int linux_code,
                                const QString& text = {}, bool repeat = false) {
  const NativeCodes codes = NativeCodesOf(linux_code);
  return QKeyEvent(type, key, modifiers, codes.scancode, codes.virtual_key, 0, text, repeat);
}

}  // namespace tavi

#endif  // TESTS_SUPPORT_SYSTEM_NATIVE_KEY_H_
