// Programs that return from their main function in the middle of gestures, macros, replays and a recording.
#include <atomic>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QDateTime>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "host/simulation/simulated_host.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "keymap/joystick_event.h"
#include "keymapmanager/key_names.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"
#include "test_folders.h"
#include "tests/record/replay_file.h"
#include "tests/support/count_threads.h"
#include "tests/support/keymap_source.h"
#include "tests/support/run_until.h"

namespace taviinputmanager {
namespace {

enum class Clockwork { kReal, kVirtual };

// Lines and callbacks; those of a replay's end come on its thread.
std::atomic<int> said{0};
std::atomic<int> replays_finished{0};

// Created before any singleton of the library, and so destroyed after the last: the destructors send nothing.
class Silence {
 public:
  ~Silence() {
    if (said_before_ >= 0 && said_before_ != said) std::_Exit(3);
  }
  void Begin() { said_before_ = said; }

 private:
  int said_before_ = -1;
};

class Program {
 public:
  explicit Program(Clockwork clockwork) {
    if (clockwork == Clockwork::kVirtual) {
      time_ = new tavi::VirtualEventDispatcher;
      QCoreApplication::setEventDispatcher(time_);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_);
    auto* host = tavi::SimulatedHost::GetInstance();
    host->listener = [](const tavi::TimelineEntry& /*entry*/) { ++said; };
    host->primary_display = 1;
    host->Start(&QDateTime::currentMSecsSinceEpoch);
    replayer_.started = replayer_.paused = replayer_.resumed = replayer_.stopped = [](int, const QString&) { ++said; };
    replayer_.finished = [](int, const QString&, ReplayParam) { ++replays_finished; };
    replayer_.vcontrol = [](const QString&, const QString&, const QString&, int, const QString&) { ++said; };
    InitializeReplayCallbacks(&replayer_);
  }

  bool RunUntil(const std::function<bool()>& condition) {
    if (!time_) return RunEventsUntil(condition);
    const qint64 limit_ms = time_->NowMs() + 60000;
    while (!condition() && time_->NowMs() < limit_ms) time_->Advance(1);
    return condition();
  }

 private:
  InputReplayerCallbacks replayer_;
  tavi::VirtualEventDispatcher* time_ = nullptr;  // owned by the application
  int argument_count_ = 1;
  char program_name_[8] = "leaving";
  char* arguments_[2] = {program_name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

std::unique_ptr<tavikeymapmanager::KeymapConfig> ReadKeymap(const QString& path) {
  auto result = tavikeymapmanager::ReadKeymapFile(QStringLiteral(TAVI_SOURCE_DIR "/") + path);
  if (result.HasErrors()) std::exit(4);
  return std::move(result.config);
}

void Load(const QString& keymap) {
  test::SetNextKeymap(ReadKeymap(keymap).release());
  OnLoadKeymapConfigAndInfo("any.yaml", "com.example.game", QString(), 1);
  test::SetNextJoystickKeymap(ReadKeymap("tests/data/keymaps/good/every_pad.yaml").release());
  OnLoadJoystickConfigAndInfo("any.yaml", 0);
}

void SendEveryKey(QEvent::Type type) {
  for (const QString& name : tavikeymapmanager::AllKeyNames()) {
    const auto key = tavikeymapmanager::KeyFromName(name);
    if (key->device != "keyboard") continue;
    const auto code = static_cast<quint32>(key->scancode);
    QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, code, code, 0);
    OnQtInputEvent(&event);
  }
}

void SendEveryButton(QEvent::Type type) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    QMouseEvent event(type, {640, 360}, {640, 360}, button, button, Qt::NoModifier);
    OnQtInputEvent(&event);
  }
}

void PlayEveryPadItem() {
  for (const char* name : {"A", "B", "X", "Y", "LB", "RB", "Back"}) {
    JoystickButtonEvent event(tavikeymapmanager::JoystickEvent::ButtonPress, name, 0, 0);
    OnJoystickEvent(&event);
  }
  for (const int stick : {0, 1}) {
    JoystickAxisEvent event(tavikeymapmanager::JoystickEvent::AxisTriggle, 0.5, -0.5, stick, 0);
    OnJoystickEvent(&event);
  }
}

void HoldEverything() {
  SendEveryKey(QEvent::KeyPress);
  SendEveryButton(QEvent::MouseButtonPress);
  PlayEveryPadItem();
}

// Gestures of a release too.
void LetGoAndHoldEverything() {
  SendEveryKey(QEvent::KeyRelease);
  SendEveryButton(QEvent::MouseButtonRelease);
  HoldEverything();
}

class LeavingMainInTheMiddle : public testing::TestWithParam<std::tuple<Clockwork, std::string>> {
 protected:
  LeavingMainInTheMiddle() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  // Ends the process: with 0 if everything was correct.
  [[noreturn]] static void Leave(Clockwork clockwork, const QString& keymap) {
    static Silence silence;
    int threads = 0;
    {
      const ReplayFolder folder;
      Program program(clockwork);
      threads = CountThreads();
      Load(keymap);
      StartRecord("com.example.game", "Game");
      UpdateReplayDisplayId(2);
      const QString endless = folder.Save("endless.json", {TouchDown(1, 1, "(0.5,0.5)"), TouchUp(1, 1), KeyDown(1, 30)},
                                          {{"repeat_times", 1000000000}});
      const QString brief = folder.Save("brief.json", {KeyDown(1, 17)});
      for (int id = 0; id < 4; ++id) StartReplay(0, id, QString(), endless, {});
      StartReplay(0, 4, QString(), brief, {});
      HoldEverything();
      const int enough = said + 500;
      if (!program.RunUntil([enough] { return said > enough && replays_finished > 0; })) std::exit(1);
      // Nothing of this has begun when the process ends.
      LetGoAndHoldEverything();
      PauseReplay(0, endless);
      StopReplay(1, endless, true);
      RestartReplay(4, brief, {});
      StartReplay(0, 5, QString(), endless, {});
    }
    silence.Begin();
    std::exit(ThreadsComeDownTo(threads) ? 0 : 2);
  }
};

std::string NameOf(const testing::TestParamInfo<std::tuple<Clockwork, std::string>>& info) {
  const bool is_real = std::get<0>(info.param) == Clockwork::kReal;
  const QString file = QString::fromStdString(std::get<1>(info.param)).section('/', -1).section('.', 0, 0);
  return (file + (is_real ? "_real" : "_virtual")).toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Keymaps, LeavingMainInTheMiddle,
    testing::Combine(testing::Values(Clockwork::kReal, Clockwork::kVirtual),
                     testing::Values("tests/data/keymaps/good/every_gesture.yaml", "examples/keymaps/shooter.yaml",
                                     "examples/keymaps/hero_battle.yaml", "examples/keymaps/virtual_gamepad.yaml")),
    NameOf);

TEST_P(LeavingMainInTheMiddle, IsSafe) {
  const auto& [clockwork, keymap] = GetParam();
  EXPECT_EXIT(Leave(clockwork, QString::fromStdString(keymap)), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace taviinputmanager
