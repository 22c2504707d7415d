#include "core/input_status_manager.h"

#include <utility>

#include <QMutexLocker>
#include <QVarLengthArray>

#include "core/guest_command.h"
#include "core/input_event_sender.h"
#include "keymap/keymap_functions.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::KeymapConfig;

namespace {

constexpr int kLastFixedSlot = 10;
constexpr int kLastTapSlot = 17;
constexpr int kFirstMacroSlot = 18;
constexpr int kLastMacroSlot = 25;

using Codes = QVarLengthArray<int, 16>;

// Moved out before anything is sent: sending may call code that adds a key.
Codes Take(CodeSet& keys) {
  Codes codes(keys.begin(), keys.end());
  keys.Clear();
  return codes;
}

void ReleaseKeys(const Codes& codes, int display) {
  for (const int code : codes) InputEventSender::GetInstance()->SendEvent(guest_command::KeyRelease(code), display);
}

}  // namespace

void InputStatusManager::SetStatus(InputStatus status, const QString& message) {
  status_ = status;
  SetStatusMessage(message);
  NotifyStatus();
}

void InputStatusManager::SetStatusMessage(const QString& message) {
  const std::lock_guard<std::mutex> lock(status_message_mutex_);
  status_message_ = message;
}

QString InputStatusManager::StatusMessage() const {
  const std::lock_guard<std::mutex> lock(status_message_mutex_);
  return status_message_;
}

void InputStatusManager::NotifyStatus() const {
  const InputManagerCallbacks* callbacks = callbacks_;
  if (callbacks) callbacks->OnInputStatusChanged(static_cast<int>(GetStatus()), StatusMessage());
}

// The main thread may load a keymap without a Staring item meanwhile: then that keymap's status stays.
void InputStatusManager::LeaveModes() {
  InputStatus before = status_;
  while (before != InputStatus::Normal && !status_.compare_exchange_weak(before, InputStatus::StaringOff)) {
  }
  NotifyStatus();
}

void InputStatusManager::ResetForKeymap(const KeymapConfig* config, const QString& package, const QString& extra,
                                        bool has_path, int mode, int display) {
  status_ = InputStatus::Normal;
  staring_key_ = ConfigKey();
  package_name_ = package;
  extra_ = extra;
  has_keymap_ = has_path;
  TakeStaringKey(config);
  mode_ = mode;
  LeaveModes();
  ResetAndMoveTo(display);
}

void InputStatusManager::TakeStaringKey(const KeymapConfig* config) {
  if (!config) return;
  for (const ConfigItem* item : config->items) {
    if (!item || item->type != tavikeymapmanager::keywords::kTypeStaring) continue;
    status_ = InputStatus::StaringOff;
    staring_key_ = item->key;
    ConfigKey named = item->key;
    tavikeymapmanager::SetTextForConfigKey(&named);
    SetStatusMessage(named.text);
    return;
  }
}

void InputStatusManager::UpdateDisplayId(int display) {
  LeaveModes();
  ResetAndMoveTo(display);
}

void InputStatusManager::ResetAndMoveTo(int display) {
  ForgetInput(kResetAll);
  const int left = display_id_;
  display_id_ = display;
  input_hold_ = false;
  SweepGuest(kResetAll, left);
}

void InputStatusManager::SweepGuest(int mode, int display) {
  const Codes held = Take(held_keys_);
  ReleaseSlots(mode, display);
  ReleaseKeys(held, display);
}

void InputStatusManager::ResetInputStatus(int mode, int display) {
  LeaveModes();
  ResetGuestState(mode, display);
}

void InputStatusManager::SetForceTransparent(int display, bool on) {
  const QMutexLocker locker(&force_transparent_mutex_);
  force_transparent_[display] = on;
  if (on) has_force_transparent_.store(true, std::memory_order_release);
}

bool InputStatusManager::WasMadeTransparent(int display) const {
  const QMutexLocker locker(&force_transparent_mutex_);
  return force_transparent_.value(display, false);
}

void InputStatusManager::ReleaseHeldKeys() { ReleaseKeys(Take(held_keys_), display_id_); }

void InputStatusManager::ReleaseReplayInput() {
  const int display = replay_display_id_;
  const Codes held = Take(replay_held_keys_);
  InputEventSender::GetInstance()->SendEvent(guest_command::SlotReleaseAll(), display);
  ReleaseKeys(held, display);
}

void InputStatusManager::ReleaseSlots(int mode, int display) {
  switch (mode) {
    case 0: return ReleaseSlotRange(0, kLastFixedSlot, display);
    case 1: return ReleaseSlotRange(0, kLastTapSlot, display);
    case 2: return InputEventSender::GetInstance()->SendEvent(guest_command::SlotReleaseAll(), display);
    case 4: return ReleaseSlotRange(kFirstMacroSlot, kLastMacroSlot, display);
    default: return;
  }
}

void InputStatusManager::ReleaseSlotRange(int first, int last, int display) {
  for (int slot = first; slot <= last; ++slot) {
    InputEventSender::GetInstance()->SendEvent(guest_command::SlotRelease(slot), display);
  }
}

bool InputStatusManager::ToggleInputHold() {
  input_hold_ = !input_hold_;
  return input_hold_;
}

}  // namespace taviinputmanager
