// The capture of a macro: converts host events to the macro language.
#include <cmath>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "core/display_geometry.h"
#include "core/pixels.h"
#include "keymap/keymap_functions.h"
#include "qt/mouse_events.h"
#include "qt/wheel_events.h"
#include "record/point_text.h"
#include "record/record_format.h"
#include "record/record_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::getMacroConfigKeyCode;

namespace {

constexpr int kKeptMove = 10;  // every tenth move, from the first on, so that a long drag does not flood the macro

QString Instruction(const char* word, int argument) {
  return QLatin1String(word) + QLatin1Char(':') + QString::number(argument);
}

QPoint PositionOf(const QEvent* mouse) { return RoundedPoint(qt::PlaceOf(*static_cast<const QMouseEvent*>(mouse))); }

}  // namespace

void RecordManager::CaptureEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove:
      if (mouse_move_counter_++ % kKeptMove == 0) AddMacroMove(PositionOf(event));
      return;
    case QEvent::MouseButtonPress:
      AddMacroMove(PositionOf(event));
      return AddMacroAction(Instruction("vmouse_press", getMacroConfigKeyCode(event)));
    case QEvent::MouseButtonRelease:
      AddMacroMove(PositionOf(event));
      return AddMacroAction(Instruction("vmouse_release", getMacroConfigKeyCode(event)));
    case QEvent::Wheel: {
      const auto* wheel = static_cast<QWheelEvent*>(event);
      AddMacroMove(RoundedPoint(wheel->position()));
      const int delta = qt::TurnOf(*wheel);
      return AddMacroAction(Instruction(delta > 0 ? "vmouse_wheelup" : "vmouse_wheeldown", delta));
    }
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->isAutoRepeat()) return;
      return AddMacroAction(Instruction("keyboard_press", getMacroConfigKeyCode(event)));
    case QEvent::KeyRelease:
      if (static_cast<QKeyEvent*>(event)->isAutoRepeat()) return;
      return AddMacroAction(Instruction("keyboard_release", getMacroConfigKeyCode(event)));
    case QEvent::InputMethod:
      return AddMacroAction(QLatin1String("text_inject:") + static_cast<QInputMethodEvent*>(event)->commitString());
    default: return;
  }
}

void RecordManager::AddMacroMove(const QPoint& window_position) {
  const WindowGeometry window = DisplayGeometry::GetInstance()->GetWindowGeometry();
  const double x = static_cast<double>(window_position.x()) / window.width;
  const double y = static_cast<double>(window_position.y()) / window.height;
  if (!std::isfinite(x) || !std::isfinite(y)) return;  // a window without a size has no fractions
  AddMacroAction(QLatin1String("vmouse_move:") + WritePoint(QPointF(x, y)));
}

void RecordManager::AddMacroAction(const QString& data) {
  if (data.isEmpty()) return;
  macro_actions_.Add({0, record_format::kTypeRawInput, data, QStringLiteral("0"), {}});
}

}  // namespace taviinputmanager
