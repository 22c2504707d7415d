// A key event that a macro creates inside the library.
#ifndef CORE_VIRTUAL_KEYBOARD_EVENT_H_
#define CORE_VIRTUAL_KEYBOARD_EVENT_H_

#include <type_traits>

#include <QKeyEvent>

namespace taviinputmanager {

class VirtualKeyboardEvent : public QKeyEvent {
 public:
  // A key event with any constructor, with slot_index 0.
  using QKeyEvent::QKeyEvent;

  // The constructor with native codes, followed by the pointer.
  VirtualKeyboardEvent(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, quint32 native_scan_code,
                       quint32 native_virtual_key, quint32 native_modifiers, const QString& text, bool auto_repeat,
                       ushort count, qint64 slot)
      : QKeyEvent(type, key, modifiers, native_scan_code, native_virtual_key, native_modifiers, text, auto_repeat,
                  count),
        slot_index(slot) {}

  // `code` is the key, the native scan code and the native virtual key. A template, so that a modifier, which converts
  // to any number, is not taken for a pointer.
  template <typename Slot, typename = std::enable_if_t<std::is_integral_v<Slot>>>
  VirtualKeyboardEvent(QEvent::Type type, int code, Slot slot)
      : VirtualKeyboardEvent(type, code, Qt::NoModifier, static_cast<quint32>(code), static_cast<quint32>(code), 0,
                             QString(), false, 1, slot) {}

  qint64 slot_index = 0;  // the virtual pointer that its macro works with
};

}  // namespace taviinputmanager

#endif  // CORE_VIRTUAL_KEYBOARD_EVENT_H_
