// The order and timing of commands: pauses, loops, presses and releases of the key.
#include "simulators/macro/macro_sequential_tap_async_worker.h"

#include "tests/simulators/macro/macro_story.h"

namespace taviinputmanager {
namespace {

using MacroWorker = MacroStory;

// ---- Pauses ----

TEST_F(MacroWorker, CommandsWithoutPauseRunInsideThePress) {
  Run({"text_inject:a", "nonsense", "sleep:1:2", "sleepy", "text_inject:b"});
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:b");
}

TEST_F(MacroWorker, ASleepLastsItsTime) {
  Run({"sleep:20", "text_inject:a", "sleep", "text_inject:b", "default_sleep_time:5", "sleep", "text_inject:c",
       "sleepy:10", "text_inject:d"});
  Wait(100);
  EXPECT_WIRE("20ms text TEXT:a", "28ms text TEXT:b", "33ms text TEXT:c", "43ms text TEXT:d");
}

TEST_F(MacroWorker, ASleepOfNothingLetsOtherInputIn) {
  for (const char* sleep : {"sleep:", "sleep:0", "sleep:x"}) {
    Run({sleep, "text_inject:a"});
    EXPECT_WIRE_NONE();
    Wait(1);
    EXPECT_EQ(1, TakeWire().size()) << sleep;
  }
}

TEST_F(MacroWorker, ANegativeSleepEndsOnlyByTheReleaseList) {
  Run({"sleep:-5", "text_inject:a"}, {"text_inject:b"});
  Play("wait 1000; down F1; wait 1000; up F1");
  EXPECT_WIRE("2000ms text TEXT:b");
}

TEST_F(MacroWorker, TheDefaultSleepIsNewForEachList) {
  Run({"default_sleep_time:50"}, {"sleep", "text_inject:a"});
  Play("up F1; wait 100");
  EXPECT_WIRE("8ms text TEXT:a");
}

// ---- Loops ----

TEST_F(MacroWorker, ALoopRunsItsCount) {
  Run({"start_loop:3", "text_inject:a", "sleep:5", "stop_loop", "text_inject:b"});
  Wait(100);
  EXPECT_WIRE("0ms text TEXT:a", "5ms text TEXT:a", "10ms text TEXT:a", "15ms text TEXT:b");
}

TEST_F(MacroWorker, ALoopOfOneCommandRunsOnce) {
  Run({"start_loop:5", "text_inject:a", "stop_loop", "text_inject:b", "stop_loop"});
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:b");
}

TEST_F(MacroWorker, ALoopThatCountsToNothingRunsOnce) {
  Run({"start_loop:x", "text_inject:a", "text_inject:b", "stop_loop"});
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:b");
}

TEST_F(MacroWorker, AnInnerLoopTakesThePlaceOfTheOuter) {
  Run({"start_loop:2", "text_inject:a", "start_loop:2", "text_inject:b", "text_inject:c", "stop_loop", "text_inject:d",
       "stop_loop"});
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:b", "0ms text TEXT:c", "0ms text TEXT:b", "0ms text TEXT:c",
              "0ms text TEXT:d");
}

TEST_F(MacroWorker, ALoopOfAMillionRoundsNeedsNoStack) {
  Run({"start_loop:1000000", "nonsense", "nonsense", "stop_loop", "text_inject:a"});
  EXPECT_WIRE("0ms text TEXT:a");
}

TEST_F(MacroWorker, ALoopUntilReleaseEndsAtItsNextStop) {
  Run({"start_loop:until_release", "text_inject:a", "sleep:10", "stop_loop", "text_inject:b"}, {"text_inject:c"});
  Play("wait 25; up F1; wait 100");
  // The commands after the loop run, and the release list does not.
  EXPECT_WIRE("0ms text TEXT:a", "10ms text TEXT:a", "20ms text TEXT:a", "30ms text TEXT:b");
}

TEST_F(MacroWorker, ASecondReleaseOfSuchALoopIsAReleaseLikeAnyOther) {
  Run({"start_loop:until_release", "text_inject:a", "sleep:10", "stop_loop", "text_inject:b"}, {"text_inject:c"});
  Play("wait 5; up F1; up F1; wait 100");
  EXPECT_WIRE("0ms text TEXT:a", "5ms text TEXT:c");
}

TEST_F(MacroWorker, ALoopLeftOpenSwallowsItsRelease) {
  Run({"start_loop:until_release", "text_inject:a"}, {"text_inject:b"});
  Play("up F1");
  EXPECT_WIRE("0ms text TEXT:a");
  Play("up F1");
  EXPECT_WIRE("0ms text TEXT:b");
}

// ---- Presses and releases ----

TEST_F(MacroWorker, APressOfARunningMacroIsDropped) {
  Run({"text_inject:a", "sleep:20", "text_inject:b"});
  Play("wait 10; down F1; wait 100");
  EXPECT_WIRE("0ms text TEXT:a", "20ms text TEXT:b");
  Play("down F1");  // at 110 ms it is over
  EXPECT_WIRE("110ms text TEXT:a");
}

TEST_F(MacroWorker, AReleaseWithoutListLetsThePressListRunOn) {
  Run({"text_inject:a", "sleep:20", "text_inject:b"});
  Play("wait 10; up F1; wait 1; down F1; wait 100");  // still running: the second press is dropped
  EXPECT_WIRE("0ms text TEXT:a", "20ms text TEXT:b");
}

TEST_F(MacroWorker, AReleaseListCutsThePressListShort) {
  Run({"text_inject:a", "sleep:20", "text_inject:b"}, {"text_inject:c", "sleep:20", "text_inject:d"});
  Play("wait 10; up F1; wait 5; down F1; wait 100");  // a press during the release list is dropped
  EXPECT_WIRE("0ms text TEXT:a", "10ms text TEXT:c", "30ms text TEXT:d");
}

TEST_F(MacroWorker, AMacroWithoutPauseIsOverBeforeItsRelease) {
  Run({"text_inject:a"});
  Play("up F1; down F1; up F1; up F1; down F1");
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:a", "0ms text TEXT:a");
}

TEST_F(MacroWorker, AMacroMayHaveAReleaseListOnly) {
  Run({}, {"text_inject:a"});
  EXPECT_WIRE_NONE();
  Play("up F1; down F1; up F1");
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:a");
}

TEST_F(MacroWorker, AReleaseNeedsNoPress) {
  Macro({}, {"text_inject:a"});
  Load();
  Play("up F1");
  EXPECT_WIRE("0ms text TEXT:a");
}

// ---- Commands that come back ----

TEST_F(MacroWorker, AMacroStartsAnother) {
  Macro({"keyboard_press:60", "text_inject:b"});  // F2
  Macro({"text_inject:a", "sleep:5", "text_inject:c"}, {}, "F2");
  Load();
  Play("down F1; wait 5");
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:b", "5ms text TEXT:c");
}

TEST_F(MacroWorker, AMacroDoesNotPressItself) {
  Run({"text_inject:a", "keyboard_press:59", "text_inject:b"});
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:b");
}

TEST_F(MacroWorker, AMacroThatReleasesItselfGoesOnWithItsReleaseList) {
  Run({"keyboard_release:59", "text_inject:a"}, {"text_inject:b", "sleep:5", "text_inject:c"});
  Wait(100);
  // The pause of the inner call is skipped: the outer call continues the list at once. At the tick it is over.
  EXPECT_WIRE("0ms text TEXT:b", "0ms text TEXT:c");
}

// Each of the keys releases F1, whose list starts again from the top and drops the presses of those that are already
// running. So it starts once, and once more for each key.
TEST_F(MacroWorker, AFiniteProgramRunsWholeHoweverOftenItReleasesItself) {
  constexpr int kKeys = 300;
  QStringList list = {"text_inject:a"};
  for (int i = 0; i < kKeys; ++i) {
    const int code = 1000 + i;
    Macro({"keyboard_release:59", "sleep:1000"})->key.scancode = code;
    list << "keyboard_press:" + QString::number(code);
  }
  Macro({}, list << "text_inject:b");
  Load();
  Play("up F1");
  const QStringList lines = TakeWire();
  EXPECT_EQ(kKeys + 1, lines.count("0ms text TEXT:a"));
  EXPECT_EQ(1, lines.count("0ms text TEXT:b"));
  EXPECT_EQ("0ms text TEXT:b", lines.last().toStdString());
}

// Each macro taps the next one between two texts, far deeper than calls nest on the stack: the second texts come in the
// opposite order.
TEST_F(MacroWorker, CommandsComeInTheSameOrderHoweverDeep) {
  constexpr int kKeys = 100;
  QStringList expected;
  for (int i = 0; i < kKeys; ++i) {
    const QString number = QString::number(i);
    const QString next = QString::number(1001 + i);
    QStringList press = {"text_inject:in" + number};
    if (i + 1 < kKeys) press << "keyboard_press:" + next << "keyboard_release:" + next;
    Macro(press << "text_inject:out" + number, {"text_inject:up" + number})->key.scancode = 1000 + i;
    expected << "0ms text TEXT:in" + number;
  }
  for (int i = kKeys - 1; i >= 0; --i) {
    if (i + 1 < kKeys) expected << "0ms text TEXT:up" + QString::number(i + 1);
    expected << "0ms text TEXT:out" + QString::number(i);
  }
  Macro({"keyboard_press:1000"});
  Load();
  Play("down F1");
  EXPECT_EQ(expected.join('\n').toStdString(), TakeWire().join('\n').toStdString());
}

// Two that release each other endlessly, and one that does so with its own wheel notch, each of which takes 50 ms.
TEST_F(MacroWorker, ReleaseListsThatReleaseEachOtherComeToAnEnd) {
  Macro({}, {"keyboard_release:59", "text_inject:b"}, "F2");
  Run({}, {"keyboard_release:60", "text_inject:a"});
  Play("up F1");
  EXPECT_EQ(1, TakeWire().filter("TEXT:a").size());
}

TEST_F(MacroWorker, AListThatTurnsItsOwnWheelComesToAnEnd) {
  Macro({}, {"mouse_wheelup:1", "text_inject:a"}, "Wheel Up");
  Load();
  Play("wheel +120 10,10; wait 100");
  EXPECT_EQ(1, TakeWire().filter("TEXT:a").size());
}

TEST_F(MacroWorker, AReleaseListThatReleasesItsOwnKeyComesToAnEnd) {
  Run({}, {"keyboard_release:59", "text_inject:a"});
  Play("up F1");
  EXPECT_WIRE("0ms text TEXT:a");
  Play("down F1; up F1");
  EXPECT_WIRE("0ms text TEXT:a");
}

// Each inner run pauses at once, and the outer call is back at the release; after very many that is dropped.
TEST_F(MacroWorker, AReleaseListThatPausesAndReleasesItsOwnKeyComesToAnEnd) {
  Run({}, {"sleep:5", "keyboard_release:59", "text_inject:a"});
  Play("up F1; wait 100");
  EXPECT_WIRE("5ms text TEXT:a");
  Play("up F1; wait 100");
  EXPECT_WIRE("105ms text TEXT:a");
}

// Each of them finds the list at its end, so that none recurses.
TEST_F(MacroWorker, AnotherMacroMayReleaseItManyTimesInOneCommand) {
  Macro({"start_loop:10", "keyboard_release:59", "next", "stop_loop", "text_inject:b"}, {}, "F2");
  Run({"keyboard_press:60"}, {"text_inject:a"});
  const QStringList lines = TakeWire();
  EXPECT_EQ(10, lines.count("0ms text TEXT:a"));
  EXPECT_EQ("0ms text TEXT:b", lines.last().toStdString());
}

TEST_F(MacroWorker, ReleaseListsThatPauseAndReleaseEachOtherComeToAnEnd) {
  Macro({}, {"keyboard_release:59"}, "F2");
  Run({}, {"sleep:5", "keyboard_release:60", "text_inject:a"});
  Play("up F1; wait 100");
  EXPECT_WIRE("5ms text TEXT:a");
}

}  // namespace
}  // namespace taviinputmanager
