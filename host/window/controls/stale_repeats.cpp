#include "host/window/controls/stale_repeats.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "host/session/native_key.h"

namespace tavi {

StaleRepeats::StaleRepeats(QObject* parent) : QObject(parent) {}

void StaleRepeats::Take(const QSet<quint32>& held) {
  held_ = held;
  QCoreApplication::instance()->removeEventFilter(this);
  if (!held_.isEmpty()) QCoreApplication::instance()->installEventFilter(this);
}

bool StaleRepeats::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      if (IsStale(*static_cast<QKeyEvent*>(event))) return true;
      break;
    default: break;
  }
  return QObject::eventFilter(watched, event);
}

// Any event but a repeat ends it: the key was released, or pressed again.
bool StaleRepeats::IsStale(const QKeyEvent& event) {
  const quint32 key = NativeKeyOf(event).scancode;
  if (event.isAutoRepeat()) return held_.contains(key);
  held_.remove(key);
  return false;
}

}  // namespace tavi
