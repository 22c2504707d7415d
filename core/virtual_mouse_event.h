// A mouse event made inside the library, by a macro.
#ifndef CORE_VIRTUAL_MOUSE_EVENT_H_
#define CORE_VIRTUAL_MOUSE_EVENT_H_

#include <QMouseEvent>

namespace taviinputmanager {

class VirtualMouseEvent final : public QMouseEvent {
 public:
  // `position` in window pixels. `buttons` are those held after the event.
  VirtualMouseEvent(QEvent::Type type, const QPointF& position, Qt::MouseButton button, Qt::MouseButtons buttons,
                    qint64 slot_index)
      : QMouseEvent(type, position, button, buttons, Qt::NoModifier), slot_index(slot_index) {}

  qint64 slot_index;  // the virtual pointer that its macro works with; 0 is the real mouse
};

}  // namespace taviinputmanager

#endif  // CORE_VIRTUAL_MOUSE_EVENT_H_
