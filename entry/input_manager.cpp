// Start, keymaps, and input created inside the library. The routing of events is in input_manager_routes.cpp.
#include "core/input_manager.h"

#include <algorithm>
#include <string>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/input_event_sender.h"
#include "core/input_logger.h"
#include "core/input_status_manager.h"
#include "core/keymap_access.h"
#include "core/virtual_mouse_event.h"
#include "handlers/joystick_event_simulate_handler.h"
#include "handlers/joystick_event_transparent_handler.h"
#include "handlers/qt_input_method_event_handler.h"
#include "handlers/qt_keyboard_event_transparent_handler.h"
#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"
#include "handlers/qt_wheel_event_simulate_handler.h"
#include "handlers/windows_wm_relative_input_event_handler.h"
#include "keymap/joystick_event.h"
#include "keymap/keymap_config.h"
#include "keymap/keymap_functions.h"
#include "record/record_manager.h"
#include "taviinputmanager/callbacks.h"
#include "taviinputmanager/joystick_event.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::IsSameText;
using tavikeymapmanager::JoystickEvent;
using tavikeymapmanager::kUnsetCode;
using tavikeymapmanager::kWheelDownCode;
using tavikeymapmanager::kWheelUpCode;

namespace {

constexpr int kNotch = 120;             // eighths of a degree
constexpr int kMacroWheelUpCode = 224;  // the wheel's name in macros
constexpr int kMacroWheelDownCode = 225;

void LogLoad(const QString& path, bool is_system, const QString& package, int display) {
  InputLogger* log = InputLogger::GetInstance();
  if (!log->IsDebugOn()) return;
  if (is_system) log->Debug("use system config for: " + package.toStdString());
  log->Debug("on load keymap config and info: " + path.toStdString() + std::to_string(display));
}

}  // namespace

InputManager::InputManager()
    : status_(InputStatusManager::GetInstance()),
      recorder_(RecordManager::GetInstance()),
      simulate_(QtKeyboardMouseEventSimulateHandler::GetInstance()),
      relative_(WindowsWmRelativeInputEventHandler::GetInstance()),
      last_mouse_move_ms_(Clock::NowMs()) {}

InputManager::~InputManager() = default;

void InputManager::Initialize(InputManagerCallbacks* callbacks) {
  callbacks_ = callbacks;
  last_mouse_move_ms_ = std::min(last_mouse_move_ms_, Clock::NowMs());  // virtual time may precede real time
  DisplayGeometry::GetInstance()->SetCallbacks(callbacks);
  status_->SetCallbacks(callbacks);
  JoystickEventTransparentHandler::GetInstance()->SetCallbacks(callbacks);
  JoystickEventSimulateHandler::GetInstance()->SetCallbacks(callbacks);
  simulate_->Initialize(callbacks);
  InputEventSender::GetInstance()->SetCallbacks(callbacks);
  OnLoadKeymapConfigAndInfo(QString(), QString(), QString(), 0);
  OnLoadJoystickConfigAndInfo(QString());
}

bool InputManager::IsOwnPackage(const QString& package) {
  return package.startsWith(QLatin1String("com.android.")) || package.startsWith(QLatin1String("com.rolo.")) ||
         package.startsWith(QLatin1String("com.halvane.rolo.")) || package == QLatin1String("app.lawnchair");
}

void InputManager::OnLoadKeymapConfigAndInfo(const QString& path, const QString& package, const QString& extra,
                                             int display) {
  const bool is_system = path.isEmpty() && IsOwnPackage(package);
  const QString source = is_system ? keywords::kSystemKeymap : path;
  LogLoad(path, is_system, package, display);

  simulate_->ForgetConfig();
  QtWheelEventSimulateHandler::GetInstance()->ForgetConfig();
  keymap_config_.reset();
  keymap_config_.reset(tavikeymapmanager::LoadKeymapConfigAndInfo(source));
  if (!keymap_config_) return;  // a keymap library that failed: events are dropped until a load succeeds

  const auto& wheel_settings = WheelSettingsOf(keymap_config_.get());
  if (callbacks_ && callbacks_->OnVirtualJoystickChanged) {
    JoystickEventTransparentHandler::GetInstance()->SetVirtualJoystick(wheel_settings.virtual_joystick);
    callbacks_->OnVirtualJoystickChanged(wheel_settings.virtual_joystick);
  }
  simulate_->SetConfig(keymap_config_.get());
  status_->ResetForKeymap(keymap_config_.get(), package, extra, !source.isEmpty(), wheel_settings.simulate_mode,
                          display);
  QtWheelEventSimulateHandler::GetInstance()->SetConfig(keymap_config_.get());
}

void InputManager::OnLoadJoystickConfigAndInfo(const QString& path) {
  JoystickEventSimulateHandler* handler = JoystickEventSimulateHandler::GetInstance();
  handler->ForgetConfig();
  joystick_config_.reset();
  joystick_config_.reset(tavikeymapmanager::LoadJoystickConfigAndInfo(path));
  handler->SetConfig(joystick_config_.get());
}

bool InputManager::isConfigHasSpeicalTypeKey(const QString& type) const {
  return tavikeymapmanager::isConfigHasSpeicalTypeKey(keymap_config_.get(), type);
}

void InputManager::SwitchStaring(bool enter) {
  const auto& key = status_->GetStaringKey();
  if (key.device.isEmpty()) return;  // the keymap has no view control
  if (key.device == keywords::kDeviceJoystick) {
    if (key.text.isEmpty()) return;
  } else if (key.virtual_key == kUnsetCode || key.scancode == kUnsetCode) {
    return;
  }
  if (status_->GetStatus() != (enter ? InputStatus::StaringOff : InputStatus::Staring)) return;
  DispatchVirtualEvent(key.device, 0, key.scancode, true, QPointF());  // never released: only its press has an effect
}

void InputManager::InjectText(const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QtInputMethodEventHandler::GetInstance()->OnInputMethod(&event);
}

void InputManager::DispatchVirtualEvent(const QString& device, qint64 id, int code, bool press, const QPointF& point) {
  if (IsSameText(device, keywords::kDeviceMouse)) return DispatchVirtualMouse(id, code, press, point);
  if (!IsSameText(device, keywords::kDeviceKeyboard)) return;
  // Bypasses recording, text mode and forced transparency: this is not the user. Keys have no pointer.
  if (simulate_->SetVirtualKey(code, press)) return;
  QtKeyboardEventTransparentHandler::GetInstance()->SetVirtualKey(code, press);
}

void InputManager::DispatchVirtualMouse(qint64 id, int code, bool press, const QPointF& point) {
  if (id == 0 && (code == kWheelUpCode || code == kWheelDownCode)) {
    return DispatchWheelAt(point, code == kWheelUpCode ? kNotch : -kNotch);
  }
  const QEvent::Type type = press ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease;
  const auto button = static_cast<Qt::MouseButton>(static_cast<quint32>(code));  // a macro may contain any number
  const Qt::MouseButtons held = press ? Qt::MouseButtons(button) : Qt::NoButton;
  if (id != 0) {
    VirtualMouseEvent event(type, point, button, held, id);
    return OnQtInputEvent(&event);
  }
  QMouseEvent event(type, point, point, button, held, Qt::NoModifier);
  OnQtInputEvent(&event);
}

void InputManager::DispatchVirtualWheel(const QString& device, int delta, int code, const QPointF& point) {
  if (device != keywords::kDeviceMouse) return;
  if (code != kMacroWheelUpCode && code != kMacroWheelDownCode) return;
  DispatchWheelAt(point, delta);
}

void InputManager::DispatchWheelAt(const QPointF& point, int delta) {
  QWheelEvent event(point, point, QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  OnQtInputEvent(&event);
}

void InputManager::DispatchVirtualJoystickButton(const QString& device, const QString& text, bool press) {
  if (device != keywords::kDeviceJoystick) return;
  JoystickButtonEvent event(press ? JoystickEvent::ButtonPress : JoystickEvent::ButtonRelease, text, 0,
                            kMacroJoystickDevice);
  OnJoystickEvent(&event);
}

}  // namespace taviinputmanager
