#include "simulators/macro/macro_sequential_tap_async_worker.h"

#include <utility>

#include <QTimer>

#include "core/input_manager.h"
#include "keymap/keywords.h"
#include "keymap/macro_config_item.h"
#include "keymap/operation_recorder_config_item.h"
#include "qt/numbers.h"
#include "simulators/macro/macro_calls.h"
#include "simulators/macro/macro_command.h"
#include "simulators/macro/macro_key_text.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::MacroConfigItem;
using tavikeymapmanager::MacroVerb;
using tavikeymapmanager::OperationRecorderConfigItem;

namespace {

// While it exists, the worker is not deleted.
class CallScope {
 public:
  explicit CallScope(int* depth) : depth_(depth) { ++*depth_; }
  ~CallScope() { --*depth_; }
  CallScope(const CallScope&) = delete;
  CallScope& operator=(const CallScope&) = delete;

 private:
  int* depth_;
};

void TellOperationStarted(const MacroConfigItem& item, const MacroProgram& program) {
  if (!dynamic_cast<const OperationRecorderConfigItem*>(&item)) return;
  const InputManagerCallbacks* callbacks = InputManager::GetInstance()->GetCallbacks();
  if (!callbacks || !callbacks->OnOperationRecorderStarted) return;
  callbacks->OnOperationRecorderStarted(MacroKeyText(item.key), program.TotalSleep());
}

void RequestScreenshot(const QString& text) {
  const InputManagerCallbacks* callbacks = InputManager::GetInstance()->GetCallbacks();
  if (callbacks && callbacks->OnScreenshotRequest) callbacks->OnScreenshotRequest(text);
}

// A copy of the name: the host may press the next key before it reads it.
void SwitchMouseLock(QString key_name) {  // NOLINT(performance-unnecessary-value-param)
  const InputManager* manager = InputManager::GetInstance();
  // There the key of the Staring item handles it.
  if (manager->isConfigHasSpeicalTypeKey(tavikeymapmanager::keywords::kTypeStaring)) return;
  const InputManagerCallbacks* callbacks = manager->GetCallbacks();
  if (callbacks && callbacks->OnMouseLockSwitch) callbacks->OnMouseLockSwitch(key_name);
}

}  // namespace

MacroSequentialTapAsyncWorker::MacroSequentialTapAsyncWorker() = default;

const MacroSequentialTapAsyncWorker::Program& MacroSequentialTapAsyncWorker::Read(Program* program,
                                                                                  const QStringList& commands) {
  if (!*program || !(*program)->IsOf(commands)) *program = std::make_shared<const MacroProgram>(commands);
  return *program;
}

// ---- From outside ----

void MacroSequentialTapAsyncWorker::Press(MacroConfigItem* item, ConfigKey* /*key*/) {
  const CallScope scope(&depth_);
  key_name_ = item->key.text;
  state_ = State::kPress;
  const Program program = Read(&press_program_, item->press_commands);
  const Program release = Read(&release_program_, item->release_commands);
  if (program->HasLoopUntilRelease() || release->HasLoopUntilRelease()) has_until_release_ = true;
  const unsigned list = lists_.Current();
  TellOperationStarted(*item, *program);
  if (lists_.IsOver(list)) return;  // the host released the key, whose release has a list of its own
  state_ = State::kPress;
  StopList();
  RunList(program);
}

void MacroSequentialTapAsyncWorker::Release(MacroConfigItem* item, ConfigKey* /*key*/) {
  if (loop_.IsUntilRelease()) return loop_.EndSoon();
  // A finished list cannot recurse: the code that releases it then ends itself.
  if (program_ && !MacroCalls::GetInstance()->MayRestart(this)) return;
  const CallScope scope(&depth_);
  key_name_ = item->key.text;
  state_ = State::kRelease;
  if (!item->release_commands.isEmpty()) {
    curve_.Clear();  // its contact stays down
    StopList();
    RunList(Read(&release_program_, item->release_commands));
  } else if (!program_) {
    state_ = State::kFinished;
  }
}

void MacroSequentialTapAsyncWorker::OnTimer() {
  const CallScope scope(&depth_);
  if (curve_.HasNextPoint()) {
    SendEvent(curve_.BuildNextPress());
    if (curve_.HasNextPoint()) {
      Pause(default_sleep_);
      return;
    }
    if (!curve_.IsHeldAtEnd()) {
      Pause(curve_.GetLastSleep(default_sleep_));
      return;
    }
  }
  if (curve_.IsPlayedOut()) SendEvent(curve_.BuildRelease());
  if (!click_points_.IsEmpty()) SendEvent(fingers_.Release(std::exchange(click_points_, MacroPoints())));
  Timer()->stop();
  MacroCalls::GetInstance()->Run(this);
}

void MacroSequentialTapAsyncWorker::Discard() {
  is_discarded_ = true;
  StopList();
  SendEvent(curve_.BuildRelease());
  SendEvent(fingers_.ReleasePressed());
  if (depth_ == 0) {
    delete this;
  } else {
    deleteLater();  // one of its commands is running and will return here
  }
}

// ---- The list ----

void MacroSequentialTapAsyncWorker::StopList() {
  Timer()->stop();
  program_.reset();
  command_index_ = 0;
}

void MacroSequentialTapAsyncWorker::RunList(const Program& program) {
  if (program->Size() == 0) {
    state_ = State::kFinished;
    return;
  }
  lists_.Begin();
  program_ = program;
  command_index_ = 0;
  default_sleep_ = kDefaultSleepMs;
  MacroCalls::GetInstance()->Run(this);
}

bool MacroSequentialTapAsyncWorker::Step() {
  const CallScope scope(&depth_);
  const MacroCalls* calls = MacroCalls::GetInstance();
  Program running;  // kept while one of its commands is running, which may replace the list
  while (!is_discarded_ && !calls->HasWaiting()) {
    if (!program_ || command_index_ >= program_->Size()) {
      StopList();
      state_ = State::kFinished;
      return false;
    }
    if (running != program_) running = program_;
    const MacroProgram::Line& line = running->At(command_index_++);
    if (line.command && !Obey(*line.command, line.text)) return false;
  }
  return !is_discarded_;
}

bool MacroSequentialTapAsyncWorker::Obey(const MacroCommand& command, const QString& text) {
  const QString& argument = command.argument;
  switch (command.verb) {
    case MacroVerb::kSleepDefault: return Pause(default_sleep_);
    case MacroVerb::kSleep: return Pause(command.Integer());
    case MacroVerb::kClickRel: return Click(command.points);
    case MacroVerb::kCurveRel: return DrawCurve(argument);
    case MacroVerb::kDefaultSleepTime: default_sleep_ = command.Integer(); break;
    case MacroVerb::kPressRel: SendEvent(fingers_.Press(command.points)); break;
    case MacroVerb::kReleaseRel: SendEvent(fingers_.Release(command.points)); break;
    case MacroVerb::kReleaseAll: ReleaseAll(); break;
    case MacroVerb::kSwitchRel: Switch(command.points); break;
    case MacroVerb::kStartLoop: StartLoop(command); break;
    case MacroVerb::kStopLoop: StopLoop(); break;
    case MacroVerb::kCurveFirstPointSleepTime: curve_.SetFirstSleep(command.Integer()); break;
    case MacroVerb::kCurveLastPointSleepTime: SetLastCurveSleep(argument); break;
    case MacroVerb::kCurveRelease: SendEvent(curve_.BuildRelease()); break;
    case MacroVerb::kMouseLockedSwitch: SwitchMouseLock(key_name_); break;
    case MacroVerb::kScreenshotRel: RequestScreenshot(text); break;
    default: input_.Obey(command); break;
  }
  return true;
}

bool MacroSequentialTapAsyncWorker::Pause(int ms) {
  if (!is_discarded_) Timer()->start(ms);
  return false;
}

// ---- Fingers and loops ----

bool MacroSequentialTapAsyncWorker::Click(const MacroPoints& list) {
  const LineBuffer press = fingers_.Press(list);
  click_points_ = list;
  SendEvent(press);
  return Pause(default_sleep_);
}

bool MacroSequentialTapAsyncWorker::DrawCurve(const QString& list) {
  if (!curve_.Start(list)) return true;  // a curve is in progress, or all contacts of macros are down
  SendEvent(curve_.BuildNextPress());
  return Pause(curve_.GetFirstSleep(default_sleep_));
}

void MacroSequentialTapAsyncWorker::ReleaseAll() {
  const LineBuffer release = MacroFingers::ReleaseAll();
  if (release.isEmpty()) return;  // no contact was down; the settings of the next curve stay too
  curve_.Clear();
  SendEvent(release);
}

void MacroSequentialTapAsyncWorker::Switch(const MacroPoints& list) {
  const MacroFingers::Halves halves = fingers_.Split(list);
  if (!halves.press.isEmpty()) SendEvent(fingers_.Press(halves.press));
  if (!halves.release.isEmpty()) SendEvent(fingers_.Release(halves.release));
}

void MacroSequentialTapAsyncWorker::StartLoop(const MacroCommand& command) {
  loop_.Start(IsLoopUntilRelease(command) ? MacroLoop::kUntilRelease : command.Integer(), command_index_);
}

void MacroSequentialTapAsyncWorker::StopLoop() {
  constexpr int kBack = 2;  // the index is already past the stop_loop
  if (loop_.Repeats(command_index_ - kBack)) command_index_ = loop_.GetStart();
}

void MacroSequentialTapAsyncWorker::SetLastCurveSleep(const QString& argument) {
  if (argument == QLatin1String("until_release_cmd")) {
    curve_.SetUntilRelease();
  } else {
    curve_.SetLastSleep(qt::ToInt(argument));
  }
}

}  // namespace taviinputmanager
