// A key event made inside the library, by a macro.
#ifndef CORE_VIRTUAL_KEYBOARD_EVENT_H_
#define CORE_VIRTUAL_KEYBOARD_EVENT_H_

#include <QKeyEvent>

namespace taviinputmanager {

class VirtualKeyboardEvent : public QKeyEvent {
 public:
  // `code` stands as key, native scan code and native virtual key alike.
  VirtualKeyboardEvent(QEvent::Type type, int code, qint64 slot_index)
      : QKeyEvent(type, code, Qt::NoModifier, static_cast<quint32>(code), static_cast<quint32>(code), 0, QString(),
                  false, 1),
        slot_index(slot_index) {}

  qint64 slot_index;  // the virtual pointer that its macro works with
};

}  // namespace taviinputmanager

#endif  // CORE_VIRTUAL_KEYBOARD_EVENT_H_
