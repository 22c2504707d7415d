// The input layer of a desktop front end that shows an Android guest in a window.
//
// The host feeds the library the Qt events of its guest view. A keymap decides what each event becomes, and the library
// sends the guest lines of text through the host's send functions.
//
// Call order: SetInputEventSendFunc and SetInputTextSendFunc (and SetInputEventSyncFunc and SetInputTextSyncFunc to
// mirror input), Initialize, InitializeRecordCallbacks and InitializeReplayCallbacks, then OnLoadKeymapConfigAndInfo
// each time another app comes to the front, then events. The send functions are not checked for null: set them before
// the first line is sent.
//
// Threads: call a function on the host's main thread, the one of QCoreApplication, unless its comment says "any
// thread". Lines are sent on the main thread too, with one exception listed under hazards. Debug builds assert the
// thread in every function except those for replays.
//
// Re-entrancy: a host may call the library from its own send and mirror functions and from the callbacks in its tables.
// - On the main thread it may call anything except Initialize, OnLoadKeymapConfigAndInfo, OnLoadJoystickConfigAndInfo,
//   OnResetInputStatus and UpdateDisplayId. These free what the library is still using further up the stack. Post them
//   instead (QMetaObject::invokeMethod with Qt::QueuedConnection). Do not run an event loop there either.
// - On any other thread it may call the functions marked "any thread" and those that the replay table allows.
// Lines sent by the inner call follow the line that is being sent, both to the guest and in mirrors and records. An
// inner event for the same gesture overrides the outer one, and the rest of the outer one is dropped. There is no limit
// on the depth.
//
// Ownership: tables, events and strings remain the caller's. Keep tables alive for as long as you use the library.
//
// Errors: no function throws or reports an error unless its comment says so. What cannot be done is skipped.
//
// Hazards:
// - Several gestures block the calling thread for a few milliseconds on purpose (the swipe of a cast, a wheel notch).
// - GetScriptAppAndPackage does not return for a file without actions, or whose first action has no `data`.
// - A macro loop without a pause may never return.
// - When a replay reaches the end of its record, the reset of its contacts runs on the replay's thread. Its lines,
//   including mirrored ones, the status callback, IsPrimaryDisplay and `finished` arrive on that thread, possibly
//   before the lines of the last action. The main thread may do anything meanwhile, including recording.
// - On a replay's thread a host may call only the functions listed in the section Replay.
// - GetTouchRect and GetDisplayRotation are also called on the thread of a pinch that a key started.
// - UpdateRecordTimestamp does not catch the exceptions of its JSON parser.
// - A host that loads a keymap, resets input or changes the display from inside one of its own functions may crash; see
//   Re-entrancy.
//
// Leaving main while gestures, macros or replays are running is safe.
//
// Loading: once loaded, the shared libraries and their state stay in the process, even after dlclose. The code behind a
// host's tables and send functions must stay loaded as well. Except on Windows, loading Poco, which this library uses,
// blocks SIGPIPE on the loading thread and on threads started from it. The library does not undo this, because the host
// or another user of Poco in the process may rely on it. A host that needs the signal unblocks it (pthread_sigmask) at
// the start of main or after dlopen.
#ifndef TAVIINPUTMANAGER_TAVIINPUTMANAGER_H_
#define TAVIINPUTMANAGER_TAVIINPUTMANAGER_H_

#include <QList>
#include <QString>
#include <QVector>

#include "taviinputmanager/callbacks.h"
#include "taviinputmanager/export.h"
#include "taviinputmanager/joystick_event.h"
#include "taviinputmanager/types.h"
#include "taviinputmanager/virtual_time.h"

class QEvent;

namespace taviinputmanager {

// ---- Input events --------------------------------------------------------------------------------------------------

// Feeds a Qt event of the guest view: keys, mouse buttons and moves, wheel, touch, input method. Positions are relative
// to the view. Native scan codes are Windows scan codes with the extended bit as 0x100; the host converts them. Events
// of other types, and all events before Initialize, are dropped. The event is not kept after the call.
// On Qt 6, a touch point created by the host has no device, and its scene position is used.
TAVI_EXPORT void OnQtInputEvent(QEvent* event);

// Feeds a gamepad event (joystick_event.h). Events of other types, and all events before Initialize, are dropped. The
// event is not kept after the call.
TAVI_EXPORT void OnJoystickEvent(QEvent* event);

// Feeds relative mouse counts, which the host reads from the window system while the pointer is captured. Ignored
// before Initialize.
TAVI_EXPORT void OnWindowsWmRelativeInputEvent(int dx, int dy);

// Sends a complete event line, newline included, to `display`. It is mirrored and recorded unchanged.
TAVI_EXPORT void OnInputRawEventData(const QString& command, int display);

// Sends a complete text line, newline included.
TAVI_EXPORT void OnInputRawTextData(const QString& command);

// Clicks the guest's back key on `display`: sends the press now and the release 8 ms later.
TAVI_EXPORT void doBackAction(int display);

// ---- Configuration and state ---------------------------------------------------------------------------------------

// Stores the host's table and loads an empty keymap and an empty joystick keymap. With a null table the library assumes
// a display of 1280 x 720 pixels and calls no callbacks. Both ints are ignored. Do not call it from inside a callback.
TAVI_EXPORT void Initialize(InputManagerCallbacks* callbacks, int, int);

// Replaces the keymap with the one at `path`, resets all input on the previous display, and directs input to `display`.
// An empty path and the `package` of one of the system's own apps load the system keymap. `extra` is stored and not
// read. Do not call it from inside a callback.
TAVI_EXPORT void OnLoadKeymapConfigAndInfo(const QString& path, const QString& package, const QString& extra,
                                           int display);

// Replaces the joystick keymap with the one at `path`. Resets nothing. The int is ignored. Do not call it from inside a
// callback.
TAVI_EXPORT void OnLoadJoystickConfigAndInfo(const QString& path, int);

// Releases the keys and gestures on `display` (0: the current one), that is keys and contacts in slots 0 to 10. `full`
// also lifts the contacts of taps, slots 11 to 17, and ends macros that loop until release and rapid taps that last
// while their key is held. Other macros and rapid taps with a fixed count continue, and slots 18 to 25 are not lifted;
// a keymap load and UpdateDisplayId end and lift these as well. No reset, here or elsewhere, releases the buttons and
// sticks of a gamepad: only their own events do. Ignored before Initialize. Do not call it from inside a callback.
TAVI_EXPORT void OnResetInputStatus(bool full, int display);

// What the mouse currently does, as last reported by OnInputStatusChanged. Normal before the first keymap load. Any
// thread.
TAVI_EXPORT InputStatus GetInputStatus();

// Ends and lifts everything on the current display and directs input to `display`. The keymap stays loaded. Do not call
// it from inside a callback.
TAVI_EXPORT void UpdateDisplayId(int display);

// While on, keys and the wheel on `display` pass through regardless of the keymap. So do mouse moves, and all mouse
// buttons that the keymap does not map except the left one. Reset input when you change this.
TAVI_EXPORT void UpdateDisplayForceTransparent(int display, bool on);

// Moves the guest's pointer to a position in the guest view, in window pixels. Relative counts move it on from there.
// Affects keymaps with a transparent mouse only. Ignored before Initialize.
TAVI_EXPORT void UpdateMousePosition(int x, int y);

// Scales a position in the guest view to the guest's touch surface, in place. Unlike positions in lines it is not
// rotated. Both coordinates are scaled by the same factor, which maps the view's width to the surface's width as the
// window shows it.
TAVI_EXPORT void ConvertWindowPositionToAndroid(int& x, int& y);

// Scales the sensitivity of view control for each axis: 1 leaves it unchanged, 0 reduces it to 1 %, 2 raises it to
// 200 %. Keymap loads keep the factors.
TAVI_EXPORT void SetHandyStaringSensitivity(double x, double y);

// Whether a macro has asked to keep input pressed when the window loses the focus.
TAVI_EXPORT bool isInputHoldWhenWindowDeactivate();

// ---- Command functions and mirroring -------------------------------------------------------------------------------

// Each function takes a pointer to a function of the type with the matching name (types.h) and uses it from the next
// line on. The type is not checked.

// Sets the function that sends event lines, an InputEventSendFunc. Null logs an error and changes nothing.
TAVI_EXPORT void SetInputEventSendFunc(void* func);
// Sets the function that sends text lines, an InputTextSendFunc. Null logs an error and changes nothing.
TAVI_EXPORT void SetInputTextSendFunc(void* func);
// Sets the function that mirrors event lines, an InputEventSyncFunc. Null changes nothing.
TAVI_EXPORT void SetInputEventSyncFunc(void* func);
// Sets the function that mirrors text lines, an InputTextSyncFunc. Null changes nothing.
TAVI_EXPORT void SetInputTextSyncFunc(void* func);

// Adds `target` to the names passed to the mirror functions, unless it is there already. The other two arguments are
// ignored.
TAVI_EXPORT void StartSync(const QString& target, const QString&, const QString&);

// Removes `target` from those names. Unknown names are ignored.
TAVI_EXPORT void StopSync(const QString& target);
// The same as StopSync. StartSync adds the target again.
TAVI_EXPORT void PauseSync(const QString& target);

// ---- Recording -----------------------------------------------------------------------------------------------------
//
// The recorder stores lines sent to primary displays, and text lines, as actions without a display. It does not store
// the host's events. No call is refused in any state: pausing a stopped recorder is reported like any other pause.

// Sets the recorder's callbacks. The table remains the host's; null is allowed.
TAVI_EXPORT void InitializeRecordCallbacks(InputRecorderCallbacks* callbacks);
// Whether the recorder is recording, paused or stopped. Any thread.
TAVI_EXPORT RecordStatus GetRecordStatus();
// Starts a recording. Its first action holds both names, for GetScriptAppAndPackage.
TAVI_EXPORT void StartRecord(const QString& package, const QString& app);
// Stops recording and saves the record to `filename` as UTF-8 JSON. The callback `stopped` reports the result. A record
// of nothing but lifted contacts is not saved. An existing file is replaced entirely or not at all: a complete copy of
// the new content, named `filename` plus ".tavi-copy-" and six letters, exists beside it until the new content is on
// the disk. If the program or the machine crashes before that, the copy remains until the next complete save of that
// file. Where no copy can be made, as in a write-protected folder, the file is overwritten without one.
// UpdateRecordTimestamp and MergeRecord write in the same way.
TAVI_EXPORT void StopRecord(const QString& package_name, const QString& filename);
// Pauses the recording. What happens until ResumeRecord is not recorded, and its time is cut out.
TAVI_EXPORT void PauseRecord();
// Resumes the recording.
TAVI_EXPORT void ResumeRecord();
// Adds a host command to the recording. A replay passes it to the callback `vcontrol`. Ignored if `data` is empty. With
// "1" as `extra1` the record is saved even if it holds nothing else.
TAVI_EXPORT void AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2);
// Sets the creation time in a record file to now. Everything else in it stays, including unknown keys. Any thread.
// Throws the exceptions of the JSON parser (Poco).
TAVI_EXPORT void UpdateRecordTimestamp(const QString& filename);
// Starts to capture host events as lines of the macro language under `name`. Event lines are not recorded meanwhile.
TAVI_EXPORT void StartRecordMacroInstruction(QString name);
// Ends the capture and makes its lines available.
TAVI_EXPORT void StopRecordMacroInstruction(QString name);
// The lines of the last capture, "sleep:<ms>" and instructions in turn. Empty for any other name and while a capture is
// running.
TAVI_EXPORT QList<QString> getRecordMacroInstruction(QString name);
// Reads the header of a record file into `info`. If the file cannot be read, returns false and leaves `info` unchanged.
// Any thread.
TAVI_EXPORT bool GetRecordInfo(const QString& file, RecordInfo* info);
// Reads the names that were passed to StartRecord. A missing name leaves its argument unchanged. Any thread.
TAVI_EXPORT void GetScriptAppAndPackage(const QString& file, QString& app, QString& package);
// Writes the records named in `params`, in order, to `file` as one merged record, a playlist. Returns false and leaves
// `file` unchanged if a record cannot be read or `file` cannot be written. `file` may be one of the sources. Any
// thread.
TAVI_EXPORT bool MergeRecord(const QString& file, const QVector<MergeParam>& params);

// ---- Replay --------------------------------------------------------------------------------------------------------
//
// A replay is identified by its task id and file. Requests pass through its thread, so they take effect later, in
// order; requests that match no replay are ignored. Replays share the contacts of macros, slots 18 to 25.
//
// A replay's callbacks except `vcontrol`, and the reset at the end of its record, run on the replay's thread. There a
// host may call StartReplay, PauseReplay, ResumeReplay, RestartReplay, StopReplay, StopAllReplay, UpdateReplayDisplayId
// and the functions marked "any thread", and no others. From that thread these seven are posted to the main thread:
// they run in the order of the calls, after the actions that were due before. On the main thread they act immediately.

// Sets the replay callbacks. The table remains the host's; null is allowed. A replay uses the table that was set when
// it started, except for `vcontrol`.
TAVI_EXPORT void InitializeReplayCallbacks(InputReplayerCallbacks* callbacks);
// Replays `filename` on a thread of its own, identified by `task_id` and `filename`. The first int and the first string
// are ignored. A file that cannot be read starts nothing, and `started` is not called. Where the platform supports it,
// the file is locked against writers until the replay is stopped. The first callbacks may come before this returns.
TAVI_EXPORT void StartReplay(int, int task_id, const QString&, const QString& filename, ReplayParam param);
// Pauses a replay, keeps the rest of the current delay, and fully resets all input on the current display, which
// need not be the one that replays send to.
TAVI_EXPORT void PauseReplay(int task_id, const QString& file);
// Presses what replays held down again, and resumes the replay.
TAVI_EXPORT void ResumeReplay(int task_id, const QString& file);
// Restarts the replay from its first action, at the speed it was started with; `param` is ignored. Call it from
// `finished` to loop.
TAVI_EXPORT void RestartReplay(int task_id, const QString& file, ReplayParam param);
// Ends a replay. One that has finished stays available for a restart until it is stopped. With `stop_by_user`
// everything that replays hold down is released.
TAVI_EXPORT void StopReplay(int task_id, const QString& file, bool stop_by_user);
// Ends all replays and releases nothing.
TAVI_EXPORT void StopAllReplay();
// Sets the display that all replays send to; 0 initially.
TAVI_EXPORT void UpdateReplayDisplayId(int display);

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_TAVIINPUTMANAGER_H_
