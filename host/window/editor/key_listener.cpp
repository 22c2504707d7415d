#include "host/window/editor/key_listener.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace tavi {

KeyListener::KeyListener(bool takes_chords, QWidget* parent) : QToolButton(parent), takes_chords_(takes_chords) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setToolTip(takes_chords_ ? QStringLiteral("Waits for a key, or for two at once; Escape cancels")
                           : QStringLiteral("Waits for a key; Escape cancels"));
  connect(this, &QToolButton::clicked, this, &KeyListener::Listen);
  Stop();
}

void KeyListener::Listen() {
  is_listening_ = true;
  capture_ = KeyCapture(takes_chords_);
  setText(QStringLiteral("Press it\u2026"));  // no longer than before: it shares a line with the key's name
  setFocus();
}

void KeyListener::Stop() {
  is_listening_ = false;
  setText(QStringLiteral("Press a key"));
}

void KeyListener::Take(const QString& key) {
  if (key.isEmpty()) return;
  Stop();
  Q_EMIT Bound(key);
}

void KeyListener::TakePad(const QString& text, bool down) {
  if (!is_listening_) return;
  const QString name = NameOfPadButton(text);
  down ? Press(name) : Release(name);
}

bool KeyListener::event(QEvent* event) {
  if (!is_listening_) return QToolButton::event(event);
  switch (event->type()) {
    case QEvent::ShortcutOverride: event->accept(); return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return HandleKey(*static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: Press(NameOfMouseButton(static_cast<QMouseEvent*>(event)->button())); return true;
    case QEvent::MouseButtonRelease:
      Release(NameOfMouseButton(static_cast<QMouseEvent*>(event)->button()));
      return true;
    case QEvent::Wheel: {
      const bool is_up = static_cast<QWheelEvent*>(event)->angleDelta().y() > 0;
      Take(is_up ? QStringLiteral("Wheel Up") : QStringLiteral("Wheel Down"));
      return true;
    }
    case QEvent::FocusOut: Stop(); break;
    default: break;
  }
  return QToolButton::event(event);
}

bool KeyListener::HandleKey(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return true;
  const QString name = NameOfKeyEvent(event);
  if (event.key() == Qt::Key_Escape) {
    Stop();
  } else if (event.type() == QEvent::KeyPress) {
    Press(name);
  } else {
    Release(name);
  }
  return true;
}

}  // namespace tavi
