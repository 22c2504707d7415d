// Macros by key, the effect of resets on them, and operations.
#include "simulators/macro/macro_event_simulator.h"

#include "simulators/macro/macro_sequential_tap_async_worker.h"
#include "slots/macro_held_input.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/simulators/macro/macro_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::OperationRecorderConfigItem;

class MacroSimulator : public MacroStory {
 protected:
  // The lines and texts of macros: those of resets are left out.
  QStringList MacroLines() {
    const QStringList lines = TakeWire();
    return lines.filter(QStringLiteral("MULTI")) + lines.filter(QStringLiteral("TEXT"));
  }
  OperationRecorderConfigItem* Operation(const QStringList& press, const QStringList& release = {},
                                         const QString& key = "F1") {
    auto* item = Add<OperationRecorderConfigItem>("OperationRecorder", key);
    item->press_commands = press;
    item->release_commands = release;
    return item;
  }
};

TEST_F(MacroSimulator, MacrosRunSideBySide) {
  Macro({"text_inject:a", "sleep:20", "text_inject:b"});
  Macro({"text_inject:c", "sleep:10", "text_inject:d"}, {}, "F2");
  Load();
  Play("down F1; wait 5; down F2; wait 100");
  EXPECT_WIRE("0ms text TEXT:a", "5ms text TEXT:c", "15ms text TEXT:d", "20ms text TEXT:b");
}

TEST_F(MacroSimulator, OtherItemsAreNothing) {
  ConfigItem item;
  tavikeymapmanager::ConfigKey key;
  MacroEventSimulator::GetInstance()->Press(&item, &key);
  MacroEventSimulator::GetInstance()->Release(&item, &key);
  MacroEventSimulator::GetInstance()->Press(nullptr, &key);
  EXPECT_WIRE_NONE();
}

TEST_F(MacroSimulator, AButtonOfTheGamepadRunsAMacro) {
  Load();
  Macro({"text_inject:a", "sleep:10", "text_inject:b"}, {"text_inject:c"}, "Pad A");
  Macro({"text_inject:d"}, {}, "Pad B");
  LoadJoystick();
  Play("joy down A; joy down B; wait 20; joy up A");
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:d", "10ms text TEXT:b", "20ms text TEXT:c");
}

TEST_F(MacroSimulator, AGamepadsMacroOutlivesItsKeymap) {
  Load();
  Macro({"press_rel:(0.5,0.5)", "sleep:10", "mouselocked_switch", "release_all"}, {}, "Pad A");
  LoadJoystick();
  Play("joy down A");
  LoadJoystick();
  Wait(10);
  EXPECT_EQ(1, TakeCalls().filter(QStringLiteral("mouse_lock")).size());
  EXPECT_WIRE("10ms 1:SLOTMULTIRELEASE:18");
}

// ---- Resets ----

TEST_F(MacroSimulator, AFullResetByTheHostEndsMacrosWithALoopUntilRelease) {
  Macro({"press_rel:(0.25,0.5)", "sleep:10", "start_loop:until_release", "text_inject:a", "sleep:10", "stop_loop"});
  Macro({"press_rel:(0.5,0.5)", "sleep:10", "text_inject:b"}, {}, "F2");
  Load();
  Play("down F1; down F2");
  Forget();
  Play("wait 5; reset full; wait 100");  // before the loop began
  EXPECT_EQ((QStringList{"5ms 1:SLOTMULTIRELEASE:18", "10ms text TEXT:b"}), MacroLines());
}

TEST_F(MacroSimulator, ALoopUntilReleaseInTheReleaseListCounts) {
  Run({"sleep:20", "text_inject:a"}, {"start_loop:until_release", "sleep:10", "sleep:10", "stop_loop"});
  Play("wait 5; reset full; wait 100");
  EXPECT_EQ(QStringList(), MacroLines());
}

TEST_F(MacroSimulator, AnInputResetLeavesAllMacros) {
  Run({"start_loop:until_release", "sleep:10", "text_inject:a", "stop_loop"});
  Play("wait 5; reset; wait 10");
  EXPECT_EQ((QStringList{"10ms text TEXT:a"}), MacroLines());
}

TEST_F(MacroSimulator, AnotherKeymapEndsAllMacros) {
  Run({"press_rel:(0.5,0.5)", "sleep:10", "text_inject:a"});
  Load();
  Wait(100);
  EXPECT_WIRE_NONE();
  Macro({"text_inject:b"});
  Load();
  Play("down F1");  // the key's macro is new
  EXPECT_WIRE("0ms text TEXT:b");
}

TEST_F(MacroSimulator, AnotherDisplayEndsACurveThere) {
  Run({"curve_last_point_sleep_time:until_release_cmd", "curve_rel:(0.5,0.5)"});
  Wait(10);
  Forget();
  Play("display 2");
  // The pool was cleared before, so points are not found; a curve knows its slot.
  EXPECT_EQ((QStringList{"10ms 1:SLOTMULTIRELEASE:18"}), MacroLines());
}

TEST_F(MacroSimulator, AResetInsideACommandEndsTheMacroThere) {
  Host().table.OnScreenshotRequest = [](const QString&) { OnResetInputStatus(true, 0); };
  Run({"press_rel:(0.5,0.5)", "start_loop:until_release", "screenshot_rel", "text_inject:a", "stop_loop"});
  Wait(100);
  EXPECT_EQ((QStringList{"0ms 1:SLOTMULTIPRESS:18:18:640:360", "0ms 1:SLOTMULTIRELEASE:18"}), MacroLines());
}

TEST_F(MacroSimulator, AResetForgetsWhatIsHeld) {
  Run({"keyboard_press:17", "mouse_press:1", "joystick_press:A", "vmouse_press:1"});
  const MacroHeldInput* held = MacroHeldInput::GetInstance();
  EXPECT_TRUE(held->keys.Contains(17));
  EXPECT_TRUE(held->mouse_buttons.Contains(1));
  EXPECT_EQ(1u, held->joystick_buttons.count("A"));
  Play("reset full");
  EXPECT_TRUE(held->keys.IsEmpty());
  EXPECT_TRUE(held->mouse_buttons.IsEmpty());
  EXPECT_TRUE(held->joystick_buttons.empty());
  EXPECT_TRUE(held->virtual_buttons.Contains(1));
}

// ---- Operations ----

TEST_F(MacroSimulator, AnOperationTellsItsLength) {
  Operation({"sleep:100", "sleep", "click_rel:(0.5,0.5)", "sleepy:20", "sleep:x", "sleep:1:2", "default_sleep_time:9"},
            {"sleep:1000"});
  Load();
  Play("down F1");
  EXPECT_CALLS("0ms operation keyboard59 120");  // 100 + 20
}

TEST_F(MacroSimulator, AnOperationOfAGamepadHasItsButtonsName) {
  Load();
  Operation({"sleep:100"}, {}, "Pad A");
  LoadJoystick();
  Play("joy down A");
  EXPECT_CALLS("0ms operation A 100");
}

TEST_F(MacroSimulator, ARunningOperationDropsPressAndRelease) {
  Operation({"sleep:100", "text_inject:a"}, {"text_inject:b"});
  Load();
  Play("down F1; wait 10; up F1; down F1; up F1; wait 100");
  EXPECT_CALLS("0ms operation keyboard59 100");
  EXPECT_WIRE("100ms text TEXT:a");
  Play("up F1");
  EXPECT_WIRE("110ms text TEXT:b");
}

TEST_F(MacroSimulator, AHostMayNotListenToOperations) {
  Host().table.OnOperationRecorderStarted = nullptr;
  Operation({"text_inject:a"});
  Load();
  Play("down F1");
  EXPECT_WIRE("0ms text TEXT:a");
}

TEST_F(MacroSimulator, AMacroTellsNoLength) {
  Run({"sleep:100"});
  EXPECT_CALLS_NONE();
}

// ---- Workers ----

TEST_F(MacroSimulator, EachKeyHasAWorkerOfItsOwn) {
  const auto* macro = Macro({"sleep:100", "text_inject:a"});
  const auto* same_key = Macro({"text_inject:b"});
  const auto* other_key = Macro({"text_inject:c"}, {}, "F2");
  Load();
  MacroEventSimulator* simulator = MacroEventSimulator::GetInstance();
  MacroSequentialTapAsyncWorker* worker = simulator->GetWorker(macro);
  ASSERT_TRUE(worker);
  EXPECT_EQ(worker, simulator->GetWorker(same_key));
  EXPECT_NE(worker, simulator->GetWorker(other_key));
  EXPECT_EQ(nullptr, simulator->GetWorker(nullptr));
  Play("down F1");
  EXPECT_TRUE(worker->IsRunning());
  EXPECT_EQ(worker, simulator->GetWorker(macro));
}

TEST_F(MacroSimulator, AnOperationHasNoWorkerWhileItRuns) {
  const auto* operation = Operation({"sleep:100"});
  Load();
  MacroEventSimulator* simulator = MacroEventSimulator::GetInstance();
  const MacroSequentialTapAsyncWorker* worker = simulator->GetWorker(operation);
  ASSERT_TRUE(worker);
  Play("down F1");
  EXPECT_EQ(nullptr, simulator->GetWorker(operation));
  Wait(100);
  EXPECT_EQ(worker, simulator->GetWorker(operation));
}

}  // namespace
}  // namespace taviinputmanager
