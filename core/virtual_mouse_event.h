// A mouse event that a macro creates inside the library.
#ifndef CORE_VIRTUAL_MOUSE_EVENT_H_
#define CORE_VIRTUAL_MOUSE_EVENT_H_

#include <type_traits>

#include <QMouseEvent>

namespace taviinputmanager {

class VirtualMouseEvent final : public QMouseEvent {
 public:
  // A mouse event with any constructor, with slot_index 0. Positions in window pixels; `buttons` are those held after
  // the event.
  using QMouseEvent::QMouseEvent;

  // The short constructor, followed by the pointer or without it. The screen position is the same as the local one,
  // because nothing uses it.
  VirtualMouseEvent(QEvent::Type type, const QPointF& position, Qt::MouseButton button, Qt::MouseButtons buttons,
                    Qt::KeyboardModifiers modifiers)
      : VirtualMouseEvent(type, position, button, buttons, modifiers, qint64{0}) {}
  VirtualMouseEvent(QEvent::Type type, const QPointF& position, Qt::MouseButton button, Qt::MouseButtons buttons,
                    Qt::KeyboardModifiers modifiers, qint64 slot)
      : QMouseEvent(type, position, position, button, buttons, modifiers), slot_index(slot) {}

  // Without modifiers. A template, so that a modifier, which converts to any number, is not taken for a pointer.
  template <typename Slot, typename = std::enable_if_t<std::is_integral_v<Slot>>>
  VirtualMouseEvent(QEvent::Type type, const QPointF& position, Qt::MouseButton button, Qt::MouseButtons buttons,
                    Slot slot)
      : VirtualMouseEvent(type, position, button, buttons, Qt::NoModifier, slot) {}

  qint64 slot_index = 0;  // the virtual pointer that its macro uses; 0 is the real mouse
};

}  // namespace taviinputmanager

#endif  // CORE_VIRTUAL_MOUSE_EVENT_H_
