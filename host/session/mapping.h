#ifndef HOST_SESSION_MAPPING_H_
#define HOST_SESSION_MAPPING_H_

#include <QObject>

#include "host/session/keymap_source.h"

namespace tavi {

class Gamepads;

// The keymaps of the library, and whether they are applied.
//
// While the mapping is paused everything passes through to the guest: keys as keys, the left button as a finger, moves,
// other buttons and the wheel as those of a mouse, gamepads as gamepads. Each switch releases what is down.
//
// Main thread.
class Mapping : public QObject {
  Q_OBJECT

 public:
  // `pads` are released at each switch, and are not owned.
  explicit Mapping(Gamepads* pads, QObject* parent = nullptr);

  // Loads a keymap, and applies it unless the mapping is paused. If it cannot be used, an earlier state of the same
  // file stays in use. An empty path is no keymap.
  void Read(const QString& path);
  // The same for the gamepad keymap.
  void ReadJoystick(const QString& path);

  const KeymapSource& Keymap() const { return keymap_; }
  const KeymapSource& JoystickKeymap() const { return joystick_keymap_; }

  bool IsPaused() const { return paused_; }
  void SetPaused(bool paused);
  void TogglePause() { SetPaused(!paused_); }

  // Releases every finger and key, ends macros and replays, and releases the mouse.
  void LetGoOfEverything();

 Q_SIGNALS:
  // The mapping was paused or resumed, or another keymap is in use.
  void Changed();

 private:
  void Load();
  void LoadJoystick();
  void PassInputOn();

  Gamepads* pads_;
  KeymapSource keymap_;
  KeymapSource joystick_keymap_;
  bool paused_ = false;
};

}  // namespace tavi

#endif  // HOST_SESSION_MAPPING_H_
