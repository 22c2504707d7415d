#ifndef HOST_SESSION_MAPPING_H_
#define HOST_SESSION_MAPPING_H_

#include <QObject>

#include "host/session/keymap_source.h"

namespace tavi {

class Gamepads;

// The keymaps that the library is given, and whether they are in use.
//
// While the mapping is paused everything reaches the guest as what it is: keys as keys, the left button as a finger,
// moves, other buttons and the wheel as those of a mouse, gamepads as gamepads. What was down is let go at each switch.
//
// Main thread.
class Mapping : public QObject {
  Q_OBJECT

 public:
  // `pads` are let go at each switch, and are not owned.
  explicit Mapping(Gamepads* pads, QObject* parent = nullptr);

  // Reads a keymap, and puts it to use unless the mapping is paused. One that cannot be used leaves an earlier state of
  // the same file in use. An empty path is no keymap.
  void Read(const QString& path);
  // The same of the keymap of gamepads.
  void ReadJoystick(const QString& path);

  const KeymapSource& Keymap() const { return keymap_; }
  const KeymapSource& JoystickKeymap() const { return joystick_keymap_; }

  bool IsPaused() const { return paused_; }
  void SetPaused(bool paused);
  void TogglePause() { SetPaused(!paused_); }

  // Lifts every finger and key, ends macros and replays, and gives the mouse back.
  void LetGoOfEverything();

 Q_SIGNALS:
  // The mapping is paused or goes on, or another keymap is in use.
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
