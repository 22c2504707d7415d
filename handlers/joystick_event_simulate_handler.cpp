#include "handlers/joystick_event_simulate_handler.h"

#include <utility>

#include <QPointF>

#include "core/input_manager.h"
#include "handlers/simulator_table.h"
#include "keymap/joystick_left_walk_config_item.h"
#include "keymap/joystick_right_eye_config_item.h"
#include "keymap/keymap_config.h"
#include "keymap/tip_config_item.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/event_simulator.h"
#include "simulators/view/right_stick_eye_event_simulator.h"
#include "simulators/walk/left_stick_walk_event_simulator.h"
#include "taviinputmanager/callbacks.h"
#include "taviinputmanager/joystick_event.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::JoystickLeftWalkConfigItem;
using tavikeymapmanager::JoystickRightEyeConfigItem;
using tavikeymapmanager::TipConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

ConfigKey KeyOf(const QString& text) {
  ConfigKey key;
  key.device = keywords::kDeviceJoystick;
  key.text = text;
  return key;
}

// Joins the buttons of a chord; the button pressed last comes last.
QString CombinationOf(const QString& held, const QString& pressed) { return held + QLatin1Char('+') + pressed; }

// Whether the key named `text` ends with the release of the button `name`.
bool EndsWith(const QString& text, const QString& name) {
  return text == name || text.endsWith(CombinationOf(QString(), name));
}

QPointF ValueOf(const JoystickAxisEvent* event) { return {event->x, event->y}; }

}  // namespace

JoystickEventSimulateHandler* JoystickEventSimulateHandler::GetInstance() {
  static JoystickEventSimulateHandler instance;
  return &instance;
}

ConfigItem* JoystickEventSimulateHandler::FindItem(const ConfigKey& key) const {
  if (!joystick_config_) return nullptr;
  for (ConfigItem* item : std::as_const(joystick_config_->items)) {
    if (!item || dynamic_cast<const TipConfigItem*>(item) || !item->IsKeyMatch(key)) continue;
    if (callbacks_ && callbacks_->OnMappedDeviceUsed) callbacks_->OnMappedDeviceUsed(false);
    return item;
  }
  return nullptr;
}

EventSimulator* JoystickEventSimulateHandler::SimulatorFor(const ConfigItem* item) {
  return item ? JoystickSimulatorOf(item) : nullptr;
}

bool JoystickEventSimulateHandler::TryPress(const QString& text) {
  ConfigKey key = KeyOf(text);
  ConfigItem* item = FindItem(key);
  EventSimulator* simulator = SimulatorFor(item);
  if (!simulator) return false;
  simulator->Press(item, &key);
  if (!active_texts_.contains(text)) active_texts_.append(text);
  return true;
}

bool JoystickEventSimulateHandler::TryRelease(const QString& text) {
  ConfigKey key = KeyOf(text);
  ConfigItem* item = FindItem(key);
  EventSimulator* simulator = SimulatorFor(item);
  if (!simulator) return false;  // the entry stays active
  simulator->Release(item, &key);
  return true;
}

bool JoystickEventSimulateHandler::OnButtonPress(JoystickButtonEvent* event, int /*simulate_mode*/) {
  const QString name = event->text;
  const QStringList held = held_buttons_;  // a macro may press and release buttons while it runs
  if (event->device != kMacroJoystickDevice) releasing_.removeAll(name);
  pressing_.append(name);
  bool was_pressed = false;
  for (const QString& button : held) {
    if (button != name && TryPress(CombinationOf(button, name))) was_pressed = true;
  }
  if (!was_pressed) was_pressed = TryPress(name);
  if (!held_buttons_.contains(name)) held_buttons_.append(name);
  if (!pressing_.removeOne(name)) Release(name);  // the host released it during the call
  return was_pressed;
}

bool JoystickEventSimulateHandler::OnButtonRelease(JoystickButtonEvent* event, int /*simulate_mode*/) {
  const QString name = event->text;
  const bool is_pressing = event->device != kMacroJoystickDevice && pressing_.removeAll(name) > 0;
  return Release(name) || is_pressing;
}

bool JoystickEventSimulateHandler::Release(const QString& name) {
  const QStringList active = active_texts_;  // as above
  releasing_.append(name);
  bool was_released = false;
  for (const QString& text : active) {
    if (!EndsWith(text, name) || !TryRelease(text)) continue;
    was_released = true;
    if (releasing_.contains(name)) active_texts_.removeAll(text);
  }
  if (releasing_.removeOne(name)) held_buttons_.removeAll(name);  // otherwise the host pressed it again during the call
  return was_released;
}

bool JoystickEventSimulateHandler::OnAxis(JoystickAxisEvent* event) {
  switch (event->stick) {
    case kLeftStick: return OnLeftStick(event);
    case kRightStick: return OnRightStick(event);
    default: return false;
  }
}

bool JoystickEventSimulateHandler::OnRightStick(JoystickAxisEvent* event) {
  SpellEventSimulator* spell = SpellEventSimulator::GetInstance();
  if (spell->IsSpellActive()) {
    spell->OnJoystickAxis(event);
    return true;
  }
  ConfigItem* item = FindItem(KeyOf(keywords::kRightStick));
  if (!item) return false;
  RightStickEyeEventSimulator::GetInstance()->OnStick(dynamic_cast<JoystickRightEyeConfigItem*>(item), ValueOf(event));
  return true;
}

bool JoystickEventSimulateHandler::OnLeftStick(JoystickAxisEvent* event) {
  ConfigItem* item = FindItem(KeyOf(keywords::kLeftStick));
  if (!item) return false;
  LeftStickWalkEventSimulator::GetInstance()->OnStick(dynamic_cast<JoystickLeftWalkConfigItem*>(item), ValueOf(event));
  return true;
}

}  // namespace taviinputmanager
