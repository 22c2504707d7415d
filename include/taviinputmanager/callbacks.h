// The tables through which the library asks and tells the host.
//
// The host owns each table and keeps it alive for as long as it feeds events. Members are called on the host's main
// thread but where a member says otherwise.
//
// A member may call the library: on the main thread everything but the loads, the reset and the change of the display,
// on another thread only what is for any thread (taviinputmanager.h, "Calls from inside"). That goes for the members
// that answer a question too, though there is seldom a reason: input that comes while the library asks is handled
// before what it asks for.
#ifndef TAVIINPUTMANAGER_CALLBACKS_H_
#define TAVIINPUTMANAGER_CALLBACKS_H_

#include <QRect>
#include <QString>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

// The host view that shows the guest, in window pixels.
struct WindowGeometry {
  int x = 0;       // left edge; the macro commands mouse_... act at QCursor::pos less this
  int y = 0;       // top edge
  int width = 0;   // 0: places of the view give no line
  int height = 0;  // the same
};

// GetWindowGeometry, GetDisplayRotation, GetDisplayRect and GetTouchRect are asked for no display in particular: they
// speak of the one that input goes to (OnLoadKeymapConfigAndInfo, UpdateDisplayId). Lines of a replay are reckoned by
// the same answers. A host may change them between any two of its calls.
//
// Members marked "may be null" are tested before each call. The others are called without a test, so a host that gives
// a table fills them. The order of members is part of the contract.
struct InputManagerCallbacks {
  // The guest view's place. Positions of events are relative to its top left corner.
  WindowGeometry (*GetWindowGeometry)() = nullptr;
  // Rotation of the guest display in degrees; only 90 and 270 differ from the rest. Also asked on the thread of a zoom
  // run.
  int (*GetDisplayRotation)() = nullptr;
  // Whether the guest has a text field focused and typed keys are to become text. While it says so no key of
  // OnQtInputEvent meets the keymap; mouse, wheel and gamepads still do.
  bool (*IsTextInputActive)() = nullptr;
  // `status` is an InputStatus, `message` the name of a key: at a keymap load that of its first Staring item, else that
  // of the Staring or Observe item whose key changed the status last. A reset, a change of the display, and a load of a
  // keymap without Staring item give the name that was given before. Called at each set, also without a change; at the
  // natural end of a replay on that replay's thread.
  void (*OnInputStatusChanged)(int status, const QString& message) = nullptr;
  // The kind of gamepad `device` is: 2 and 3 have the second layout of button digits, 4 the third, all others the
  // first. Asked for each button that passes through; 100801 is the gamepad that keys play. May be null.
  int (*GetJoystickType)(int device) = nullptr;
  // Whether an Escape that nothing takes acts as the guest's back key.
  bool (*IsEscapeBackEnabled)() = nullptr;
  // Whether the keymap takes Escape at present, so that the host must not use it itself. May be null.
  void (*OnEscapeKeyOccupied)(bool occupied) = nullptr;
  // The guest display in display pixels, in the orientation that the window shows. Its top left is where aimed skills
  // and the macro point `mouse` take the pointer from: QCursor::pos less this.
  QRect (*GetDisplayRect)() = nullptr;
  // The guest's unrotated touch surface. Also asked on the thread of a zoom run.
  QRect (*GetTouchRect)() = nullptr;
  // A keymap item matched: true for keyboard and mouse, false for a joystick. Told before the item does anything. May
  // be null.
  void (*OnMappedDeviceUsed)(bool keyboard_or_mouse) = nullptr;
  // A recorded operation starts to play; `total_sleep_ms` is the sum of its pauses. May be null.
  void (*OnOperationRecorderStarted)(const QString& name, int total_sleep_ms) = nullptr;
  // The tilt of the guest's gravity sensor. May be null.
  void (*SetGravity)(double x, double y, double z) = nullptr;
  // Whether commands to this display are mirrored and recorded. Also asked on the thread of a replay that ends. May be
  // null, which means no.
  bool (*IsPrimaryDisplay)(int display) = nullptr;
  // A macro asks for the mouse to be locked or freed, in a keymap without Staring item. May be null.
  void (*OnMouseLockSwitch)(const QString& key_text) = nullptr;
  // The keymap that was loaded has virtual sticks, or has none. May be null; the library's own virtual gamepad is then
  // not switched either.
  void (*OnVirtualJoystickChanged)(bool enabled) = nullptr;
  // A macro asks for a screenshot; `instruction` is its command. May be null.
  void (*OnScreenshotRequest)(const QString& instruction) = nullptr;
};

// Told by the recorder. A table without a member filled is the host's fault: members are not tested.
struct InputRecorderCallbacks {
  void (*started)() = nullptr;  // from within StartRecord
  void (*paused)() = nullptr;   // from within PauseRecord
  void (*resumed)() = nullptr;  // from within ResumeRecord
  // From within StopRecord. `result` is 0 when the file was saved, 1 when there was nothing worth saving, 2 when it
  // could not be opened.
  void (*stopped)(const QString& filename, int result) = nullptr;
};

// Told by replays. Members are not tested. All but `vcontrol` are called on the thread of the replay they speak of.
// There a host may start, pause, resume, restart and stop replays and change their display, but call nothing else that
// belongs to the main thread (taviinputmanager.h, section Replay).
struct InputReplayerCallbacks {
  // The first action has its time; again after a restart. The two arguments are those of StartReplay, here and below.
  void (*started)(int task_id, const QString& filename) = nullptr;
  // Answers PauseReplay.
  void (*paused)(int task_id, const QString& filename) = nullptr;
  // Answers ResumeReplay.
  void (*resumed)(int task_id, const QString& filename) = nullptr;
  // Answers StopReplay and StopAllReplay. The replay is gone.
  void (*stopped)(int task_id, const QString& filename) = nullptr;
  // The record ran out; `param` holds the speed and mode that it was played with. A RestartReplay from here makes a
  // loop.
  void (*finished)(int task_id, const QString& filename, ReplayParam param) = nullptr;
  // A host command of the record fell due. Called on the host's main thread.
  void (*vcontrol)(const QString& data, const QString& extra1, const QString& extra2, int task_id,
                   const QString& filename) = nullptr;
};

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_CALLBACKS_H_
