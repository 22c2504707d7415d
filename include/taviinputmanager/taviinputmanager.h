// The input layer of a desktop front end that shows an Android guest in a window.
//
// The host hands over the Qt events of its guest view; the library decides by a keymap what each becomes and hands back
// lines of text for the guest through the host's send functions.
//
// Call order: SetInputEventSendFunc and SetInputTextSendFunc (SetInputEventSyncFunc and SetInputTextSyncFunc where
// input is mirrored), Initialize, InitializeRecordCallbacks and InitializeReplayCallbacks, OnLoadKeymapConfigAndInfo at
// each change of the app in front; then events. The send functions are not tested: a line before they are set is a
// fault.
//
// Threads: functions that do not say "any thread" are called on the host's main thread, the one of QCoreApplication.
// Lines leave on it too, with one exception told under hazards. A debug build asserts it, in all but the functions of
// replays.
//
// Calls from inside: a host may call the library from inside its own send and mirror functions and from inside the
// members of its tables.
// - On the main thread: everything but Initialize, OnLoadKeymapConfigAndInfo, OnLoadJoystickConfigAndInfo,
//   OnResetInputStatus and UpdateDisplayId. Those take away what the caller inside the library still works with: post
//   them (QMetaObject::invokeMethod with Qt::QueuedConnection). Do not run an event loop there either.
// - On any other thread that a table names: the functions marked "any thread", and what the replay's table says.
// What the inner call sends comes after the line that is being sent, for the guest as well as in mirrors and records.
// An event of the same gesture overtakes the one under way: what is left of that one is dropped. No call limits how
// deep this goes.
//
// Ownership: tables, events and strings stay the caller's. Tables live as long as the library is used.
//
// Errors: nothing throws and nothing is reported, unless a function says so. What cannot be done is left out.
//
// Hazards:
// - Several gestures block the calling thread on purpose for a few milliseconds (a swipe of a cast, a wheel notch).
// - GetScriptAppAndPackage does not return for a file whose first action has no `data`.
// - A macro loop without a pause may never return.
// - At the natural end of a replay the reset of its contacts runs on the replay's thread: those lines, also as they are
//   mirrored, the status callback, IsPrimaryDisplay and `finished` arrive there, and may come before the lines of the
//   last action. The main thread may do whatever it likes meanwhile, recording included.
// - On the thread of a replay only some functions may be called; the section Replay names them.
// - GetTouchRect and GetDisplayRotation of the table are also asked on the thread of a zoom run.
// - UpdateRecordTimestamp lets the exception of its JSON parser through.
// - A host that loads a keymap, resets or changes the display from inside a function of its own can crash; see above.
//
// Leaving main with gestures, macros or replays under way is safe.
//
// Loading: once they are loaded the shared libraries stay in the process with their state, also after dlclose. The code
// behind a host's tables and send functions has to stay too. Except on Windows, the load of Poco, on which this library
// stands, blocks SIGPIPE on the loading thread, and threads started from there inherit that. It is not undone here: the
// host, or another user of Poco in the process, may want it so. A host that counts on the signal unblocks it
// (pthread_sigmask) at the start of main, or after dlopen.
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

// A Qt event of the guest view: keys, mouse buttons and moves, wheel, touch, input method. Positions are relative to
// the view. Native scan codes are those of Windows with the extended bit as 0x100; converting is the host's duty. Other
// types are dropped, and all before Initialize. Not kept after the call. On Qt 6 a touch point that the host makes has no
// device, and its place is the one in the scene.
TAVI_EXPORT void OnQtInputEvent(QEvent* event);

// A gamepad event (joystick_event.h). Other types are dropped, and all before Initialize. Not kept after the call.
TAVI_EXPORT void OnJoystickEvent(QEvent* event);

// Relative mouse counts, taken from the window system while the pointer is captured. Nothing before Initialize.
TAVI_EXPORT void OnWindowsWmRelativeInputEvent(int dx, int dy);

// A ready guest line, newline included, for `display`; sent, mirrored and recorded unchanged.
TAVI_EXPORT void OnInputRawEventData(const QString& command, int display);

// A ready text line, newline included.
TAVI_EXPORT void OnInputRawTextData(const QString& command);

// Clicks the guest's back key on `display`: the press goes out at once, the release 8 ms later.
TAVI_EXPORT void doBackAction(int display);

// ---- Configuration and state ---------------------------------------------------------------------------------------

// Stores the host's table (null: the library works with a display of 1280 x 720 and calls nobody) and loads an empty
// keymap and an empty joystick keymap. Both ints are ignored. Not from inside a callback.
TAVI_EXPORT void Initialize(InputManagerCallbacks* callbacks, int, int);

// Takes the keymap at `path` in place of the one before, resets all input on the display held so far, and makes
// `display` the one that input goes to. With an empty path and a `package` of the system's own, the system keymap is
// loaded. `extra` is kept and not read. Not from inside a callback.
TAVI_EXPORT void OnLoadKeymapConfigAndInfo(const QString& path, const QString& package, const QString& extra,
                                           int display);

// Takes the joystick keymap at `path` in place of the one before. Resets nothing. The int is ignored. Not from inside a
// callback.
TAVI_EXPORT void OnLoadJoystickConfigAndInfo(const QString& path, int);

// Lets go of the keys and gestures on `display` (0: the current one): keys, and slots 0 to 10. `full` also lifts the
// fingers of taps, slots 11 to 17, and ends macros with a loop until release, and rapid taps that go on while their key
// is held. Other macros and rapid taps of a set number run on, and slots 18 to 25 are not swept; a keymap load and
// UpdateDisplayId end and lift those too. Buttons and sticks of gamepads stay as they are, here and wherever else input
// is reset: they are let go by events of their own. Nothing before Initialize. Not from
// inside a callback.
TAVI_EXPORT void OnResetInputStatus(bool full, int display);

// What the mouse does at present, as OnInputStatusChanged told last. Normal before the first keymap load. Any thread.
TAVI_EXPORT InputStatus GetInputStatus();

// Ends and lifts everything on the current display; from then on input goes to `display`. The keymap stays. Not from
// inside a callback.
TAVI_EXPORT void UpdateDisplayId(int display);

// While on, keys and wheel of `display` pass through whatever the keymap says, and so do moves and mouse buttons that
// the keymap does not map, but for the left one. A host resets input when it changes this.
TAVI_EXPORT void UpdateDisplayForceTransparent(int display, bool on);

// Puts the guest's pointer at a position of the guest view in window pixels, in keymaps whose mouse is transparent:
// where relative counts move it on from. Nothing before Initialize.
TAVI_EXPORT void UpdateMousePosition(int x, int y);

// Scales a position of the guest view to the guest's touch surface, both in place. It is not turned as the places in
// lines are, and one factor serves both: the width of the view to that of the surface as the window shows it.
TAVI_EXPORT void ConvertWindowPositionToAndroid(int& x, int& y);

// Factors on the view sensitivity of each axis: 1 leaves it, 0 takes it to 1 per cent, 2 to 200 per cent. Kept across
// keymap loads.
TAVI_EXPORT void SetHandyStaringSensitivity(double x, double y);

// Whether a macro asked for input to stay pressed when the window loses the focus.
TAVI_EXPORT bool isInputHoldWhenWindowDeactivate();

// ---- Command functions and mirroring -------------------------------------------------------------------------------

// Each takes a pointer to a function of the type of the same name (types.h), which is not checked, and calls it from
// the next line on.

// The function that gets the event lines, an InputEventSendFunc. Null logs an error and leaves it as it was.
TAVI_EXPORT void SetInputEventSendFunc(void* func);
// The function that gets the text lines, an InputTextSendFunc. Null logs an error and leaves it as it was.
TAVI_EXPORT void SetInputTextSendFunc(void* func);
// The function that gets event lines to mirror, an InputEventSyncFunc. Null leaves it as it was.
TAVI_EXPORT void SetInputEventSyncFunc(void* func);
// The function that gets text lines to mirror, an InputTextSyncFunc. Null leaves it as it was.
TAVI_EXPORT void SetInputTextSyncFunc(void* func);

// Adds `target` to the names that the mirror functions get, once. The other two are ignored.
TAVI_EXPORT void StartSync(const QString& target, const QString&, const QString&);

// Removes `target` from those names. Nothing for a name that is not there.
TAVI_EXPORT void StopSync(const QString& target);
// The same operation as StopSync: StartSync adds the target again.
TAVI_EXPORT void PauseSync(const QString& target);

// ---- Recording -----------------------------------------------------------------------------------------------------
//
// What is recorded are the lines to primary displays and the text lines, as actions that know no display; not the
// input. Nothing is refused in any state: a pause while stopped is reported all the same.

// The table is the host's; null is allowed.
TAVI_EXPORT void InitializeRecordCallbacks(InputRecorderCallbacks* callbacks);
// Whether a recording runs, rests or neither. Any thread.
TAVI_EXPORT RecordStatus GetRecordStatus();
// Starts a recording; both names are put in front of it, for GetScriptAppAndPackage.
TAVI_EXPORT void StartRecord(const QString& package, const QString& app);
// Ends the recording and saves it to `filename`, UTF-8 JSON. The result comes through the callback `stopped`: a
// recording of nothing but released fingers is worth no file. A file that is there is replaced as a whole or not at
// all: while it is written over, a complete copy of what it will be lies beside it, `filename` with ".tavi-copy-" and
// six letters behind it. The copy goes when the file is on the disk. Where the program or the machine dies before, it
// stays, and so does what it holds, until the next save of that file is through. Where no copy can be made, as in a
// folder that is write-protected, there is none. UpdateRecordTimestamp and MergeRecord write in the same way.
TAVI_EXPORT void StopRecord(const QString& package_name, const QString& filename);
// What happens from here to ResumeRecord is not recorded, and its time is cut out.
TAVI_EXPORT void PauseRecord();
// Goes on with the recording.
TAVI_EXPORT void ResumeRecord();
// Adds a command of the host's own to the recording; a replay hands it to the callback `vcontrol`. Nothing for empty
// `data`. `extra1` "1" makes a recording worth its file.
TAVI_EXPORT void AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2);
// Sets the time of creation in a record file to now; all else in it stays, also keys that are not the library's. Any
// thread. Throws what the JSON parser (Poco) throws.
TAVI_EXPORT void UpdateRecordTimestamp(const QString& filename);
// Captures host events as lines of the macro language under a name. Meanwhile no event line is recorded.
TAVI_EXPORT void StartRecordMacroInstruction(QString name);
// Ends that capture; what it gave can be asked for.
TAVI_EXPORT void StopRecordMacroInstruction(QString name);
// The macro that was captured last, "sleep:<ms>" and instruction by turns; empty under any other name and during a
// capture.
TAVI_EXPORT QList<QString> getRecordMacroInstruction(QString name);
// Reads the header of a record file. False when it cannot be read; `info` is untouched then. Any thread.
TAVI_EXPORT bool GetRecordInfo(const QString& file, RecordInfo* info);
// Reads the names that StartRecord was given. What is not there leaves its output as it is. Any thread.
TAVI_EXPORT void GetScriptAppAndPackage(const QString& file, QString& app, QString& package);
// Writes the record files named in `params`, in order, as one merged record to `file`, a playlist. False, and `file`
// untouched, when one of them cannot be read or `file` not be written. `file` may be one of the sources. Any thread.
TAVI_EXPORT bool MergeRecord(const QString& file, const QVector<MergeParam>& params);

// ---- Replay --------------------------------------------------------------------------------------------------------
//
// A replay is known by its task id and file. Requests reach it through its thread, so they take effect later, in their
// order; those that name no replay do nothing. Fingers of a replay are those of macros, slots 18 to 25.
//
// On the thread of a replay, which is where its callbacks but `vcontrol` come, and what its natural end tells, a host
// may call StartReplay, PauseReplay, ResumeReplay, RestartReplay, StopReplay, StopAllReplay and UpdateReplayDisplayId,
// and the functions that say "any thread"; no other. These seven are then done on the main thread as soon as its event
// loop comes to them: behind the actions that fell due before, and in the order of the calls. Called on the main thread
// they act at once.

// The table is the host's; null is allowed. A replay keeps the table of its start, but for `vcontrol`.
TAVI_EXPORT void InitializeReplayCallbacks(InputReplayerCallbacks* callbacks);
// Plays `filename` on a thread of its own, known by `task_id` and `filename` from then on. The first int and the first
// string are ignored. A file that cannot be read starts nothing, and `started` is not called. The file is held against
// writers, as far as the platform goes, until the replay is stopped. Its first callbacks may come before this returns.
TAVI_EXPORT void StartReplay(int, int task_id, const QString&, const QString& filename, ReplayParam param);
// Keeps the rest of the running delay, and resets all input of the live display in full.
TAVI_EXPORT void PauseReplay(int task_id, const QString& file);
// Presses again what replays held down, and goes on.
TAVI_EXPORT void ResumeReplay(int task_id, const QString& file);
// Plays from the start again, at the speed that the replay was started with; `param` is ignored. From `finished` it
// makes a loop.
TAVI_EXPORT void RestartReplay(int task_id, const QString& file, ReplayParam param);
// Ends a replay, also one that has finished, which otherwise stays for a restart. `stop_by_user`: what replays hold
// down is released.
TAVI_EXPORT void StopReplay(int task_id, const QString& file, bool stop_by_user);
// Ends all replays, and releases nothing.
TAVI_EXPORT void StopAllReplay();
// The display that all replays send to; 0 at start.
TAVI_EXPORT void UpdateReplayDisplayId(int display);

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_TAVIINPUTMANAGER_H_
