// The routing of events: which handler gets a host event.
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include "core/clock.h"
#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "core/keymap_access.h"
#include "handlers/joystick_event_simulate_handler.h"
#include "handlers/joystick_event_transparent_handler.h"
#include "handlers/qt_input_method_event_handler.h"
#include "handlers/qt_keyboard_event_text_handler.h"
#include "handlers/qt_keyboard_event_transparent_handler.h"
#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"
#include "handlers/qt_mouse_event_transparent_handler.h"
#include "handlers/qt_mult_point_event_handler.h"
#include "handlers/qt_wheel_event_simulate_handler.h"
#include "handlers/qt_wheel_event_transparent_handler.h"
#include "handlers/windows_wm_relative_input_event_handler.h"
#include "keymap/joystick_event.h"
#include "keymap/keymap_config.h"
#include "keymap/keywords.h"
#include "record/record_manager.h"
#include "simulators/cast/spell_event_simulator.h"
#include "taviinputmanager/callbacks.h"
#include "taviinputmanager/joystick_event.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::IsSameText;
using tavikeymapmanager::JoystickEvent;

namespace {

constexpr int kMouseMoveFloorMs = 2;  // moves that are closer in time are dropped

bool IsLeft(const QMouseEvent* event) {
  return event->button() == Qt::LeftButton || event->buttons().testFlag(Qt::LeftButton);
}

}  // namespace

void InputManager::OnQtInputEvent(QEvent* event) {
  if (!keymap_config_ || !event) return;
  recorder_->OnQtInputEvent(event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: return RouteMouseButton(static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove: return RouteMouseMove(static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return RouteKey(static_cast<QKeyEvent*>(event));
    case QEvent::Wheel: return RouteWheel(static_cast<QWheelEvent*>(event));
    default: return RouteOther(event);
  }
}

void InputManager::RouteOther(QEvent* event) {
  switch (event->type()) {
    case QEvent::InputMethod:
      status_->ReleaseHeldKeys();
      return QtInputMethodEventHandler::GetInstance()->OnInputMethod(static_cast<QInputMethodEvent*>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return QtMultPointEventHandler::GetInstance()->OnTouchEvent(static_cast<QTouchEvent*>(event));
    default: return;  // double clicks and all other events are not handled
  }
}

bool InputManager::IsForcedTransparent() const { return status_->IsDisplayForceTransparent(status_->GetDisplayId()); }

void InputManager::RouteKey(QKeyEvent* event) {
  QtKeyboardEventHandler* target = simulate_;
  if (IsForcedTransparent()) {
    target = QtKeyboardEventTransparentHandler::GetInstance();
  } else if (callbacks_ && callbacks_->IsTextInputActive()) {
    status_->ReleaseHeldKeys();
    target = QtKeyboardEventTextHandler::GetInstance();
  }
  if (target->HandleKeyEvent(event)) return;
  if (!SettingsOf(keymap_config_.get()).keyboard_transparent) return;
  QtKeyboardEventTransparentHandler::GetInstance()->HandleKeyEvent(event);
}

void InputManager::RouteMouseButton(QMouseEvent* event) {
  if (SpellEventSimulator::GetInstance()->OnMouseEvent(event)) return;
  const bool is_mapped = simulate_->IsMouseButtonMapped(event);
  QtMouseEventHandler* target = is_mapped ? simulate_ : SelectMouseHandler(event);
  target->HandleMouseEvent(event);
}

void InputManager::RouteMouseMove(QMouseEvent* event) {
  const qint64 now = Clock::NowMs();
  if (now - last_mouse_move_ms_ < kMouseMoveFloorMs) return;
  last_mouse_move_ms_ = now;
  if (QtMouseEventHandler* target = SelectMoveHandler(event)) target->HandleMouseEvent(event);
}

// Null while a gesture of the wheel swallows moves.
QtMouseEventHandler* InputManager::SelectMoveHandler(QMouseEvent* event) const {
  if (simulate_->IsHeldLeftMapped(event)) return simulate_;
  if (QtWheelEventSimulateHandler::GetInstance()->IsWheelWorkerRunning()) return nullptr;
  return SelectMouseHandler(event);
}

// The left button touches even on a display that is forced to be transparent.
QtMouseEventHandler* InputManager::SelectMouseHandler(const QMouseEvent* event) const {
  QtMouseEventHandler* transparent = QtMouseEventTransparentHandler::GetInstance();
  if (IsForcedTransparent()) return IsLeft(event) ? simulate_ : transparent;
  const QString& mode = SettingsOf(keymap_config_.get()).mouse_mode;
  const bool passes = IsLeft(event) ? IsSameText(mode, keywords::kMouseAllTransparent)
                                    : !IsSameText(mode, keywords::kMouseNoTransparent);
  return passes ? transparent : simulate_;
}

void InputManager::RouteWheel(QWheelEvent* event) {
  const auto& settings = SettingsOf(keymap_config_.get());
  const auto& wheel = WheelSettingsOf(keymap_config_.get());
  QtWheelEventHandler* target = QtWheelEventSimulateHandler::GetInstance();
  if (IsForcedTransparent() || settings.wheel_transparent) target = QtWheelEventTransparentHandler::GetInstance();
  const bool transparent_pointer = settings.mouse_mode != keywords::kMouseNoTransparent;
  target->OnWheel(event, transparent_pointer, wheel.wheel_delta, wheel.wheel_use_delta);
}

void InputManager::OnJoystickEvent(QEvent* event) {
  if (!joystick_config_ || !event) return;
  JoystickEventHandler* simulate = JoystickEventSimulateHandler::GetInstance();
  JoystickEventHandler* transparent = JoystickEventTransparentHandler::GetInstance();
  const bool falls_through = SettingsOf(joystick_config_.get()).joystick_transparent;
  if (event->type() == JoystickEvent::ButtonPress || event->type() == JoystickEvent::ButtonRelease) {
    auto* button = static_cast<JoystickButtonEvent*>(event);
    const int mode = WheelSettingsOf(joystick_config_.get()).simulate_mode;
    if (!simulate->HandleButtonEvent(button, mode) && falls_through) transparent->HandleButtonEvent(button, mode);
  } else if (event->type() == JoystickEvent::AxisTriggle) {
    auto* axis = static_cast<JoystickAxisEvent*>(event);
    if (!simulate->OnAxis(axis) && falls_through) transparent->OnAxis(axis);
  }
}

void InputManager::OnWindowsWmRelativeInputEvent(int dx, int dy) {
  if (!keymap_config_) return;
  const auto& settings = SettingsOf(keymap_config_.get());
  relative_->OnRelativeInput(dx, dy, settings.relative_interval_ms, settings.relative_factor);
}

void InputManager::UpdateMousePosition(int x, int y) {
  if (!keymap_config_) return;
  if (SettingsOf(keymap_config_.get()).mouse_mode == keywords::kMouseNoTransparent) return;
  QtMouseEventTransparentHandler::GetInstance()->UpdatePosition(x, y);
}

}  // namespace taviinputmanager
