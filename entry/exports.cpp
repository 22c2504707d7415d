// The 46 functions of the public header. Each forwards to the responsible singleton.
#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/host_functions.h"
#include "core/input_event_sender.h"
#include "core/input_logger.h"
#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "core/input_sync_manager.h"
#include "handlers/transaction_handler.h"
#include "record/record_file_utils.h"
#include "record/record_macro_instruction_store.h"
#include "record/record_manager.h"
#include "record/replay_manager.h"
#include "simulators/view/staring_wm_relative_input_worker.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager {
namespace {

// The thread that creates the application object is the main thread. Before and after that there is none to compare
// with.
bool IsMainThread() {
  const QCoreApplication* app = QCoreApplication::instance();
  return !app || app->thread() == QThread::currentThread();
}

}  // namespace

// The first statement of each function that is restricted to the main thread. In debug builds a call from another
// thread ends the program and names the function; in other builds it costs nothing.
#define TAVI_ASSERT_MAIN_THREAD() Q_ASSERT_X(IsMainThread(), __func__, "called on a thread that is not the main one")

// ---- Input events --------------------------------------------------------------------------------------------------

void OnQtInputEvent(QEvent* event) {
  TAVI_ASSERT_MAIN_THREAD();
  InputManager::GetInstance()->OnQtInputEvent(event);
}

void OnJoystickEvent(QEvent* event) {
  TAVI_ASSERT_MAIN_THREAD();
  InputManager::GetInstance()->OnJoystickEvent(event);
}

void OnWindowsWmRelativeInputEvent(int dx, int dy) {
  TAVI_ASSERT_MAIN_THREAD();
  InputManager::GetInstance()->OnWindowsWmRelativeInputEvent(dx, dy);
}

void OnInputRawEventData(const QString& command, int display) {
  TAVI_ASSERT_MAIN_THREAD();
  InputEventSender::GetInstance()->SendEvent(command, display);
}

void OnInputRawTextData(const QString& command) {
  TAVI_ASSERT_MAIN_THREAD();
  InputEventSender::GetInstance()->SendText(command);
}

void doBackAction(int display) {
  TAVI_ASSERT_MAIN_THREAD();
  TransactionHandler::GetInstance()->doBackAction(display);
}

// ---- Configuration and state ---------------------------------------------------------------------------------------

void Initialize(InputManagerCallbacks* callbacks, int, int) {
  TAVI_ASSERT_MAIN_THREAD();
  Clock::FindVirtualTime();  // first: singletons read the time in their constructors
  InputManager::GetInstance()->Initialize(callbacks);
}

void OnLoadKeymapConfigAndInfo(const QString& path, const QString& package, const QString& extra, int display) {
  TAVI_ASSERT_MAIN_THREAD();
  InputManager::GetInstance()->OnLoadKeymapConfigAndInfo(path, package, extra, display);
}

void OnLoadJoystickConfigAndInfo(const QString& path, int) {
  TAVI_ASSERT_MAIN_THREAD();
  InputManager::GetInstance()->OnLoadJoystickConfigAndInfo(path);
}

void OnResetInputStatus(bool full, int display) {
  TAVI_ASSERT_MAIN_THREAD();
  if (!InputManager::GetInstance()->HasKeymapConfig()) return;
  InputStatusManager::GetInstance()->ResetInputStatus(full ? kResetFull : kResetInput, display);
}

InputStatus GetInputStatus() { return InputStatusManager::GetInstance()->GetStatus(); }

void UpdateDisplayId(int display) {
  TAVI_ASSERT_MAIN_THREAD();
  InputStatusManager::GetInstance()->UpdateDisplayId(display);
}

void UpdateDisplayForceTransparent(int display, bool on) {
  TAVI_ASSERT_MAIN_THREAD();
  InputStatusManager::GetInstance()->SetForceTransparent(display, on);
}

void UpdateMousePosition(int x, int y) {
  TAVI_ASSERT_MAIN_THREAD();
  InputManager::GetInstance()->UpdateMousePosition(x, y);
}

void ConvertWindowPositionToAndroid(int& x, int& y) {
  TAVI_ASSERT_MAIN_THREAD();
  DisplayGeometry::GetInstance()->WindowPositionToAndroid(x, y);
}

void SetHandyStaringSensitivity(double x, double y) {
  TAVI_ASSERT_MAIN_THREAD();
  StaringWmRelativeInputWorker::GetInstance()->SetHandyStaringSensitivity(x, y);
}

bool isInputHoldWhenWindowDeactivate() {
  TAVI_ASSERT_MAIN_THREAD();
  return InputStatusManager::GetInstance()->IsInputHold();
}

// ---- Command functions and mirroring -------------------------------------------------------------------------------

void SetInputEventSendFunc(void* func) {
  TAVI_ASSERT_MAIN_THREAD();
  if (!func) return InputLogger::GetInstance()->Error("SetInputEventSendFunc fail with nullptr variable");
  GetHostFunctions().send_event = reinterpret_cast<InputEventSendFunc>(func);
}

void SetInputTextSendFunc(void* func) {
  TAVI_ASSERT_MAIN_THREAD();
  if (!func) return InputLogger::GetInstance()->Error("SetInputTextSendFunc fail with nullptr variable");
  GetHostFunctions().send_text = reinterpret_cast<InputTextSendFunc>(func);
}

void SetInputEventSyncFunc(void* func) {
  TAVI_ASSERT_MAIN_THREAD();
  if (func) GetHostFunctions().sync_event = reinterpret_cast<InputEventSyncFunc>(func);
}

void SetInputTextSyncFunc(void* func) {
  TAVI_ASSERT_MAIN_THREAD();
  if (func) GetHostFunctions().sync_text = reinterpret_cast<InputTextSyncFunc>(func);
}

void StartSync(const QString& target, const QString&, const QString&) {
  TAVI_ASSERT_MAIN_THREAD();
  InputSyncManager::GetInstance()->StartSync(target);
}

void StopSync(const QString& target) {
  TAVI_ASSERT_MAIN_THREAD();
  InputSyncManager::GetInstance()->StopSync(target);
}

void PauseSync(const QString& target) {
  TAVI_ASSERT_MAIN_THREAD();
  StopSync(target);
}

// ---- Recording -----------------------------------------------------------------------------------------------------

void InitializeRecordCallbacks(InputRecorderCallbacks* callbacks) {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->SetCallbacks(callbacks);
}

RecordStatus GetRecordStatus() { return RecordManager::GetInstance()->GetStatus(); }

void StartRecord(const QString& package, const QString& app) {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->StartRecord(package, app);
}

void PauseRecord() {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->PauseRecord();
}

void ResumeRecord() {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->ResumeRecord();
}

void StopRecord(const QString& package_name, const QString& filename) {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->StopRecord(package_name, filename);
}

void AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2) {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->AddVControlCommand(data, extra1, extra2);
}

void UpdateRecordTimestamp(const QString& filename) { RecordFileUtils::GetInstance()->UpdateRecordTimestamp(filename); }

void StartRecordMacroInstruction(QString name) {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->StartRecordMacroInstruction(name);
}

void StopRecordMacroInstruction(QString name) {
  TAVI_ASSERT_MAIN_THREAD();
  RecordManager::GetInstance()->StopRecordMacroInstruction(name);
}

QList<QString> getRecordMacroInstruction(QString name) {
  TAVI_ASSERT_MAIN_THREAD();
  return RecordMacroInstructionStore::GetInstance()->GetInstruction(name);
}

bool GetRecordInfo(const QString& file, RecordInfo* info) {
  return RecordFileUtils::GetInstance()->GetRecordInfo(file, info);
}

void GetScriptAppAndPackage(const QString& file, QString& app, QString& package) {
  RecordFileUtils::GetInstance()->GetScriptAppAndPackage(file, app, package);
}

bool MergeRecord(const QString& file, const QVector<MergeParam>& params) {
  return RecordFileUtils::GetInstance()->MergeRecord(file, params);
}

// ---- Replay --------------------------------------------------------------------------------------------------------

void InitializeReplayCallbacks(InputReplayerCallbacks* callbacks) {
  ReplayManager::GetInstance()->SetCallbacks(callbacks);
}

void StartReplay(int unused, int task_id, const QString& unused_name, const QString& filename, ReplayParam param) {
  ReplayManager::GetInstance()->StartReplay(unused, task_id, unused_name, filename, param);
}

void PauseReplay(int task_id, const QString& file) { ReplayManager::GetInstance()->PauseReplay(task_id, file); }

void ResumeReplay(int task_id, const QString& file) { ReplayManager::GetInstance()->ResumeReplay(task_id, file); }

void RestartReplay(int task_id, const QString& file, ReplayParam param) {
  ReplayManager::GetInstance()->RestartReplay(task_id, file, param);
}

void StopReplay(int task_id, const QString& file, bool stop_by_user) {
  ReplayManager::GetInstance()->StopReplay(task_id, file, stop_by_user);
}

void StopAllReplay() { ReplayManager::GetInstance()->StopAllReplay(); }

void UpdateReplayDisplayId(int display) { ReplayManager::GetInstance()->UpdateReplayDisplayId(display); }

}  // namespace taviinputmanager
