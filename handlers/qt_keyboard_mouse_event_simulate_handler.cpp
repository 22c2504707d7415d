#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"

#include "core/guest_command.h"
#include "core/input_status_manager.h"
#include "core/key_code_converter.h"
#include "core/keymap_access.h"
#include "core/virtual_keyboard_event.h"
#include "handlers/keymap_origin.h"
#include "handlers/simulator_table.h"
#include "keymap/keymap_config.h"
#include "keymap/keymap_functions.h"
#include "simulators/event_simulator.h"
#include "slots/mouse_slot_manager.h"
#include "taviinputmanager/callbacks.h"

// The keyboard side, and the common part of both sides. The mouse side is in
// qt_keyboard_mouse_event_simulate_handler_mouse.cpp.

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::ItemIndex;
using tavikeymapmanager::KeymapConfig;

namespace {

constexpr int kEscapeScanCode = 1;

int VirtualKeyOf(const QKeyEvent* event) { return static_cast<int>(event->nativeVirtualKey()); }

int ScanCodeOf(const QKeyEvent* event) { return static_cast<int>(event->nativeScanCode()); }

// A macro's key, which may come without an event.
bool IsVirtual(const QKeyEvent* event) { return !event || dynamic_cast<const VirtualKeyboardEvent*>(event) != nullptr; }

// Passes copies, because the function may write to its arguments.
Q_NEVER_INLINE bool AskKeyMatch(KeymapConfig* config, const ConfigKey& configured, const ConfigKey& pressed) {
  ConfigKey first = configured;
  ConfigKey second = pressed;
  return tavikeymapmanager::isConfigKeyMatch(config, &first, &second);
}

bool IsEscape(const ConfigKey& key) {
  return KeyCodeConverter::GetInstance()->KeyToGuestCode(key.scancode) == kEscapeCode;
}

}  // namespace

QtKeyboardMouseEventSimulateHandler::QtKeyboardMouseEventSimulateHandler()
    : default_mouse_slot_(std::shared_ptr<void>(), MouseSlotManager::GetInstance()),
      is_key_match_own_(IsKeyMatchOwn()) {
  escape_key_.device = tavikeymapmanager::keywords::kDeviceKeyboard;
  escape_key_.scancode = kEscapeScanCode;
  mouse_buttons_[0] = 0;
}

QtKeyboardMouseEventSimulateHandler::~QtKeyboardMouseEventSimulateHandler() = default;

void QtKeyboardMouseEventSimulateHandler::Initialize(InputManagerCallbacks* callbacks) {
  callbacks_ = callbacks;
  ResetKeyState();
}

void QtKeyboardMouseEventSimulateHandler::SetConfig(KeymapConfig* config) {
  config_ = config;
  index_.Clear();
  UpdateEscapeState();
}

void QtKeyboardMouseEventSimulateHandler::ForgetConfig() {
  config_ = nullptr;
  index_.Clear();
  chord_items_.clear();
}

void QtKeyboardMouseEventSimulateHandler::ResetKeyState() {
  chord_items_.clear();
  mouse_buttons_[0] = 0;
  ClearCurrentKey();
}

const ItemIndex& QtKeyboardMouseEventSimulateHandler::Index() const {
  if (config_) index_.Follow(config_->items);
  return index_;
}

ConfigItem* QtKeyboardMouseEventSimulateHandler::FindConfigItem(const ConfigKey& key) const {
  ConfigItem* item = Index().FindAlone(key);
  if (item && callbacks_ && callbacks_->OnMappedDeviceUsed) callbacks_->OnMappedDeviceUsed(true);
  return item;
}

EventSimulator* QtKeyboardMouseEventSimulateHandler::GetSimulator(const ConfigItem* item) { return SimulatorOf(item); }

ConfigItem* QtKeyboardMouseEventSimulateHandler::FindPressedItem(const ConfigKey& key) {
  if (IsKeySet(current_key_)) {
    if (ConfigItem* chord = Index().FindChord(current_key_, key)) {
      chord_items_[key.scancode] = chord;  // its release reaches the same item, whatever is armed then
      return chord;
    }
  }
  return FindConfigItem(key);
}

ConfigItem* QtKeyboardMouseEventSimulateHandler::FindReleasedItem(const ConfigKey& key) {
  const auto chord = chord_items_.constFind(key.scancode);
  if (chord == chord_items_.constEnd()) return FindConfigItem(key);
  ConfigItem* item = chord.value();
  chord_items_.remove(key.scancode);
  return item;
}

bool QtKeyboardMouseEventSimulateHandler::OnKeyPress(QKeyEvent* event) {
  return keys_.With(VirtualKeyOf(event), ScanCodeOf(event), [&](ConfigKey* key) { return PressKey(key, event); });
}

bool QtKeyboardMouseEventSimulateHandler::OnKeyRelease(QKeyEvent* event) {
  return keys_.With(VirtualKeyOf(event), ScanCodeOf(event), [&](ConfigKey* key) { return ReleaseKey(key, event); });
}

bool QtKeyboardMouseEventSimulateHandler::SetVirtualKey(int code, bool press) {
  return keys_.With(code, code,
                    [&](ConfigKey* key) { return press ? PressKey(key, nullptr) : ReleaseKey(key, nullptr); });
}

bool QtKeyboardMouseEventSimulateHandler::PressKey(ConfigKey* key, const QKeyEvent* event) {
  ConfigItem* item = FindPressedItem(*key);
  if (EventSimulator* simulator = item ? GetSimulator(item) : nullptr) {
    simulator->Press(item, key);
    return true;
  }
  if (IsEscape(*key) && PressEscape(event)) return true;
  current_key_ = ConfigKey(*key);
  UpdateEscapeState();
  return false;
}

bool QtKeyboardMouseEventSimulateHandler::ReleaseKey(ConfigKey* key, const QKeyEvent* event) {
  ConfigItem* item = FindReleasedItem(*key);
  if (EventSimulator* simulator = item ? GetSimulator(item) : nullptr) {
    simulator->Release(item, key);
    return true;
  }
  if (IsEscape(*key) && ReleaseEscape(event)) return true;
  if (IsSameKey(*key, current_key_)) ClearCurrentKey();
  return false;
}

bool QtKeyboardMouseEventSimulateHandler::AcceptsAutoRepeat(QKeyEvent* /*event*/) { return false; }

bool QtKeyboardMouseEventSimulateHandler::IsEscapeToGuest() const { return SettingsOf(config_).escape_to_guest; }

bool QtKeyboardMouseEventSimulateHandler::IsEscapeBack() const {
  return callbacks_ && callbacks_->IsEscapeBackEnabled();
}

bool QtKeyboardMouseEventSimulateHandler::PressEscape(const QKeyEvent* event) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  if (IsVirtual(event)) {
    const int code = IsEscapeToGuest() ? kEscapeCode : kBackCode;
    status->AddHeldKey(code);
    SendEvent(guest_command::KeyPress(code));
    return true;
  }
  if (IsEscapeToGuest()) return false;  // a key like any other
  if (IsEscapeBack()) {
    status->AddHeldKey(kBackCode);
    SendEvent(guest_command::KeyPress(kBackCode));
  }
  return true;  // the guest never gets it as Escape
}

bool QtKeyboardMouseEventSimulateHandler::ReleaseEscape(const QKeyEvent* event) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  if (IsVirtual(event)) {
    const int code = IsEscapeToGuest() ? kEscapeCode : kBackCode;
    status->AddHeldKey(code);  // not removed: the next reset releases a macro's Escape again
    SendEvent(guest_command::KeyRelease(code));
    return true;
  }
  if (IsEscapeToGuest()) return false;
  if (IsEscapeBack()) {
    status->RemoveHeldKey(kBackCode);
    SendEvent(guest_command::KeyRelease(kBackCode));
  }
  return true;
}

void QtKeyboardMouseEventSimulateHandler::ClearCurrentKey() {
  current_key_ = ConfigKey();
  UpdateEscapeState();
}

// A function of the host is called for each key; the library's own gives the same result as this index.
bool QtKeyboardMouseEventSimulateHandler::IsKeyMatch(const ConfigKey& configured, const ConfigKey& pressed) const {
  return is_key_match_own_ ? Index().IsFound(configured, pressed) : AskKeyMatch(config_, configured, pressed);
}

bool QtKeyboardMouseEventSimulateHandler::IsEscapeOccupied() const {
  if (!config_) return false;
  if (IsKeyMatch(escape_key_, current_key_)) return true;
  if (IsKeySet(current_key_) && IsKeyMatch(current_key_, escape_key_)) return true;
  const auto& settings = SettingsOf(config_);
  return settings.keyboard_transparent && settings.escape_to_guest;
}

void QtKeyboardMouseEventSimulateHandler::UpdateEscapeState() {
  if (callbacks_ && callbacks_->OnEscapeKeyOccupied) callbacks_->OnEscapeKeyOccupied(IsEscapeOccupied());
}

}  // namespace taviinputmanager
