#include "host/session/mapping.h"

#include "host/gamepad/gamepads.h"
#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/session/replayer.h"
#include "keymap/keywords.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace km = tavikeymapmanager;

Mapping::Mapping(Gamepads* pads, QObject* parent) : QObject(parent), pads_(pads) {
  connect(LiveHost::GetInstance(), &LiveHost::TextFieldChanged, this, &Mapping::PassInputOn);
}

void Mapping::Read(const QString& path) {
  keymap_.Read(path);
  if (!paused_ && !keymap_.KeepsEarlierState()) Load();
  Q_EMIT Changed();
}

void Mapping::ReadJoystick(const QString& path) {
  pads_->ReleaseAll();  // while the items whose keys are down still exist
  joystick_keymap_.Read(path);
  if (!paused_ && !joystick_keymap_.KeepsEarlierState()) LoadJoystick();
  Q_EMIT Changed();
}

void Mapping::SetPaused(bool paused) {
  if (paused == paused_) return;
  pads_->ReleaseAll();
  paused_ = paused;
  LoadJoystick();
  Load();  // also releases what is down
  PassInputOn();
  Q_EMIT Changed();
}

// The system keymap has no items and passes everything through.
void Mapping::Load() {
  const QString path = paused_ ? km::keywords::kSystemKeymap : keymap_.PathForUse();
  InputPort::GetInstance()->LetGoBy(
      [&path] { taviinputmanager::OnLoadKeymapConfigAndInfo(path, QString(), QString(), LiveHost::kDisplay); });
}

void Mapping::LoadJoystick() {
  const QString path = joystick_keymap_.PathForUse();
  const bool is_plain = paused_ || path.isEmpty();
  InputPort::GetInstance()->LetGoBy(
      [&] { taviinputmanager::OnLoadJoystickConfigAndInfo(is_plain ? km::keywords::kSystemKeymap : path, 0); });
}

// A display that is set to pass keys through gets keys when a text field should get letters.
void Mapping::PassInputOn() {
  const bool is_forced = paused_ && !LiveHost::GetInstance()->HasTextField();
  taviinputmanager::UpdateDisplayForceTransparent(LiveHost::kDisplay, is_forced);
}

// Setting the display, even to the same one, ends more than a full reset: endless macros, and the hold_switch of a
// macro.
void Mapping::LetGoOfEverything() {
  Replayer::GetInstance()->Stop();
  pads_->ReleaseAll();
  InputPort::GetInstance()->LetGoBy([] { taviinputmanager::UpdateDisplayId(LiveHost::kDisplay); });
  LiveHost::GetInstance()->Targets()->LiftAll();  // what a reset does not release, such as a gamepad's keys
}

}  // namespace tavi
