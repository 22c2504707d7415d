#ifndef HOST_PLAY_PLAY_SESSION_H_
#define HOST_PLAY_PLAY_SESSION_H_

#include <memory>

#include <QObject>
#include <QSize>
#include <QStringList>

#include "host/gamepad/gamepads.h"
#include "host/play/event_feeder.h"
#include "host/play/guest_outlet.h"
#include "host/play/play_devices.h"
#include "host/session/key_combination.h"
#include "host/session/keymap_watch.h"
#include "host/session/mapping.h"
#include "host/session/reserved_keys.h"

namespace tavi {

class GamepadPoll;

struct PlaySettings {
  QSize size{1280, 720};  // the guest's touch surface
  int rotation = 0;       // of its display, in degrees
  double speed = 1;       // of the pointer, in pixels of the display per count of the mouse
  QStringList devices;    // names or paths; empty: all keyboards and mice
  KeyCombination pause_key;
  KeyCombination panic_key;
  bool is_paused = false;  // initially
};

// Play without a window: from the devices of this machine through the library to a guest.
//
// While the mapping is on, the devices are grabbed and the library gets their events. While it is paused, all programs
// get them, and only the two reserved keys are handled here. However the session ends, what is down is released first.
//
// The library has one host in a process, so there is one session. Main thread.
class PlaySession : public QObject {
  Q_OBJECT

 public:
  // `source` and `outlet` outlive the session.
  PlaySession(DeviceSource* source, GuestOutlet* outlet, const PlaySettings& settings);
  ~PlaySession() override;

  // Creates the guest and takes the devices. Returns the error, for display, or an empty string. Must be called once,
  // before anything else.
  QString Start();
  // Reads the gamepads of this machine from now on, except those of guests.
  void ReadGamepads();

  // Each of these returns the error, for display, or an empty string. A keymap with errors is refused, but one that is
  // in use and gets errors stays in use as it was.
  QString LoadKeymap(const QString& path);
  QString LoadJoystickKeymap(const QString& path);
  QString SetSize(const QSize& size);
  void SetRotation(int degrees);
  // Whether a text field of the guest has the focus, so that keys are typed there. Releases everything that is down.
  void SetTextField(bool focused);

  void SetPaused(bool paused);
  // Releases everything that is down, like a reset of the library.
  void Reset();
  // Releases everything, ends macros and replays, and gives the devices back.
  void Panic();
  // Must be called last: releases everything, gives the devices back, and ends the guest.
  void End();

  PlayDevices* Devices() { return &devices_; }
  // "mapping on, shooter.yaml (24 items), 1280x720, 1 keyboard, 1 mouse, no gamepad".
  QString State() const;
  // Emits Told.
  void Tell(const QString& text) { Q_EMIT Told(text); }

 Q_SIGNALS:
  void StateChanged(const QString& state);
  // For the user: diagnostics of keymaps, changes of devices.
  void Told(const QString& text);

 private:
  void ReserveKeys();
  void StartLibrary();
  void TakeFrame(int device, const InputFrame& frame, bool is_grabbed);
  void TakeGone(int device);
  QPoint Corner() const;
  void TellFindings(const KeymapSource& source);
  void TellState();
  QString MappingText() const;
  QString DevicesText() const;

  DeviceSource* const source_;
  GuestOutlet* const outlet_;
  const PlaySettings settings_;
  QSize size_;
  ReservedKeys reserved_;
  EventFeeder feeder_;
  Gamepads pads_;
  Mapping mapping_;
  KeymapWatch watch_;
  KeymapWatch joystick_watch_;
  PlayDevices devices_;
  std::unique_ptr<GamepadPoll> pad_poll_;
  QString told_state_;
  bool has_ended_ = false;
};

}  // namespace tavi

#endif  // HOST_PLAY_PLAY_SESSION_H_
