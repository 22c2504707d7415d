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
  pads_->ReleaseAll();  // while the items that they were pressed by are alive
  joystick_keymap_.Read(path);
  if (!paused_ && !joystick_keymap_.KeepsEarlierState()) LoadJoystick();
  Q_EMIT Changed();
}

void Mapping::SetPaused(bool paused) {
  if (paused == paused_) return;
  pads_->ReleaseAll();
  paused_ = paused;
  LoadJoystick();
  Load();  // lets go, too
  PassInputOn();
  Q_EMIT Changed();
}

// The system's keymap takes nothing and passes all on.
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

// A display that is forced to be transparent gets keys where a text field should get letters.
void Mapping::PassInputOn() {
  const bool is_forced = paused_ && !LiveHost::GetInstance()->HasTextField();
  taviinputmanager::UpdateDisplayForceTransparent(LiveHost::kDisplay, is_forced);
}

// A change of the display, even to the same, ends more than a full reset: macros that go on by themselves, and what a
// macro said about holding input.
void Mapping::LetGoOfEverything() {
  Replayer::GetInstance()->Stop();
  pads_->ReleaseAll();
  InputPort::GetInstance()->LetGoBy([] { taviinputmanager::UpdateDisplayId(LiveHost::kDisplay); });
  LiveHost::GetInstance()->Targets()->LiftAll();  // what a reset leaves alone, such as a gamepad's keys
}

}  // namespace tavi
