// The callback tables through which the library queries and notifies the host.
//
// The host owns each table and keeps it alive for as long as it feeds events. Callbacks run on the host's main thread
// unless their comment says otherwise.
//
// A callback may call the library: on the main thread anything except the loads, the reset and the display change; on
// another thread only the functions marked "any thread" (taviinputmanager.h, "Re-entrancy"). This includes callbacks
// that return a value: input fed from inside one is handled before the event for which it was called.
#ifndef TAVIINPUTMANAGER_CALLBACKS_H_
#define TAVIINPUTMANAGER_CALLBACKS_H_

#include <QRect>
#include <QString>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

// The host view that shows the guest, in window pixels.
struct WindowGeometry {
  int x = 0;       // left edge; the macro commands mouse_... act at QCursor::pos minus this corner
  int y = 0;       // top edge
  int width = 0;   // 0: positions in the view produce no line
  int height = 0;  // the same
};

// GetWindowGeometry, GetDisplayRotation, GetDisplayRect and GetTouchRect take no display: they describe the one that
// input goes to (OnLoadKeymapConfigAndInfo, UpdateDisplayId). Replays use the same values. The host may change them
// between any two calls.
//
// Members marked "may be null" are checked before each call; all others are not, so the host must set them. The order
// of members is part of the contract.
struct InputManagerCallbacks {
  // Where the guest view is. Event positions are relative to its top left corner.
  WindowGeometry (*GetWindowGeometry)() = nullptr;
  // Rotation of the guest display in degrees. All values except 90 and 270 mean no rotation. Also called on the thread
  // of a pinch that a key started.
  int (*GetDisplayRotation)() = nullptr;
  // Whether a text field of the guest has the focus, so that keys are typed as text. While true, keys bypass the
  // keymap; mouse, wheel and gamepads do not.
  bool (*IsTextInputActive)() = nullptr;
  // `status` is an InputStatus. `message` names a key: after a keymap load the key of the first Staring item, and
  // otherwise the key, of a Staring or Observe item, that last changed the status. A reset, a display change and the
  // load of a keymap without a Staring item repeat the previous name. Called each time the status is set, even to the
  // same value. Called on a replay's thread when that replay reaches the end of its record.
  void (*OnInputStatusChanged)(int status, const QString& message) = nullptr;
  // The type of gamepad `device`: 2 and 3 use the second layout of button codes, 4 the third, all others the first.
  // Called for each button that passes through. Device 100801 is the virtual gamepad driven by keys. May be null.
  int (*GetJoystickType)(int device) = nullptr;
  // Whether an unmapped Escape acts as the guest's back key.
  bool (*IsEscapeBackEnabled)() = nullptr;
  // Reports whether the keymap currently uses Escape, so that the host must not. May be null.
  void (*OnEscapeKeyOccupied)(bool occupied) = nullptr;
  // The guest display in display pixels, in the orientation shown in the window. Aimed skills and the macro point
  // `mouse` use QCursor::pos minus its top left corner.
  QRect (*GetDisplayRect)() = nullptr;
  // The guest's unrotated touch surface. Also called on the thread of a pinch that a key started.
  QRect (*GetTouchRect)() = nullptr;
  // A keymap item matched: true for keyboard and mouse, false for a gamepad. Called before the item acts. May be null.
  void (*OnMappedDeviceUsed)(bool keyboard_or_mouse) = nullptr;
  // A recorded operation starts; `total_sleep_ms` is the sum of its pauses. May be null.
  void (*OnOperationRecorderStarted)(const QString& name, int total_sleep_ms) = nullptr;
  // The tilt of the guest's gravity sensor. May be null.
  void (*SetGravity)(double x, double y, double z) = nullptr;
  // Whether lines to this display are mirrored and recorded. Also called on a replay's thread at the end of its record.
  // May be null, which means false.
  bool (*IsPrimaryDisplay)(int display) = nullptr;
  // A macro asks to lock or free the mouse in a keymap without a Staring item. May be null.
  void (*OnMouseLockSwitch)(const QString& key_text) = nullptr;
  // Reports whether the loaded keymap has virtual sticks. May be null, in which case the library does not switch its
  // own virtual gamepad either.
  void (*OnVirtualJoystickChanged)(bool enabled) = nullptr;
  // A macro asks for a screenshot; `instruction` is its command. May be null.
  void (*OnScreenshotRequest)(const QString& instruction) = nullptr;
};

// Callbacks of the recorder. Members are not checked for null.
struct InputRecorderCallbacks {
  void (*started)() = nullptr;  // during StartRecord
  void (*paused)() = nullptr;   // during PauseRecord
  void (*resumed)() = nullptr;  // during ResumeRecord
  // During StopRecord. `result` is 0 if the file was saved, 1 if there was nothing to save, 2 if the file could not be
  // opened.
  void (*stopped)(const QString& filename, int result) = nullptr;
};

// Callbacks of replays. Members are not checked for null. All except `vcontrol` run on the thread of their replay.
// There a host may start, pause, resume, restart and stop replays and change their display, but may call nothing else
// that belongs to the main thread (taviinputmanager.h, section Replay).
struct InputReplayerCallbacks {
  // The first action is scheduled; called again after a restart. The arguments are those of StartReplay, here and
  // below.
  void (*started)(int task_id, const QString& filename) = nullptr;
  // PauseReplay took effect.
  void (*paused)(int task_id, const QString& filename) = nullptr;
  // ResumeReplay took effect.
  void (*resumed)(int task_id, const QString& filename) = nullptr;
  // StopReplay or StopAllReplay took effect. The replay is gone.
  void (*stopped)(int task_id, const QString& filename) = nullptr;
  // The replay reached the end of its record. `param` holds the speed and mode it was played with. Call RestartReplay
  // from here to loop.
  void (*finished)(int task_id, const QString& filename, ReplayParam param) = nullptr;
  // A host command in the record is due. Called on the host's main thread.
  void (*vcontrol)(const QString& data, const QString& extra1, const QString& extra2, int task_id,
                   const QString& filename) = nullptr;
};

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_CALLBACKS_H_
