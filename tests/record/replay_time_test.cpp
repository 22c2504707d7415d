// When actions are due, and how requests change that.
#include "record/replay_manager.h"
#include "tests/record/replay_story.h"

namespace taviinputmanager {
namespace {

class ReplayTime : public ReplayStory {};

// ---- The course of a replay ----

TEST_F(ReplayTime, EachActionWaitsForTheOneBeforeIt) {
  Save("a.json", {KeyDown(100, 30), KeyUp(50, 30), KeyDown(0, 17), KeyUp(250, 17), KeyDown(5000, 2)});
  Start(7, "a.json");
  Wait(1000);
  EXPECT_LINES("100ms 2:KBDPR:30:1", "150ms 2:KBDRL:30:0", "150ms 2:KBDPR:17:1", "400ms 2:KBDRL:17:0");
}

TEST_F(ReplayTime, OneMillisecondEarlyIsTooEarly) {
  Save("a.json", {KeyDown(100, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  EXPECT_STORY("0ms > started 7 a.json");
  Wait(99);
  EXPECT_STORY_NONE();
  Wait(1);
  EXPECT_STORY("100ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, NoDelayIsTheNextPass) {
  Save("a.json", {KeyDown(0, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  EXPECT_STORY("0ms > started 7 a.json");
  Wait(1);
  EXPECT_STORY("0ms 2:KBDPR:30:1");
}

// A clock that was set back during the recording.
TEST_F(ReplayTime, ANegativeDelayIsNone) {
  Save("a.json", {KeyDown(100, 30), KeyUp(-50, 30), KeyDown(10, 17), KeyUp(1000, 17)});
  Start(7, "a.json");
  Wait(500);
  EXPECT_LINES("100ms 2:KBDPR:30:1", "100ms 2:KBDRL:30:0", "110ms 2:KBDPR:17:1");
}

TEST_F(ReplayTime, EveryKindOfActionIsPerformed) {
  Save("a.json", {Step(10, "touch", "press_rel:(0.5,0.5)", "0"), Step(10, "keyboard", "keyboard_press:30"),
                  Step(10, "mouse", "move:(0.25,0.5)"), Step(10, "mouse", "wheel:(0,-0.1)"),
                  Step(10, "joystick", "LSTICKAXIS:1:2"), Step(10, "input_method", "text_inject:abc"),
                  Step(10, "vcontrol", "command", "first", "second"), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(500);
  EXPECT_STORY("0ms > started 7 a.json", "10ms 2:SLOTPRESS:18:18:1:1:640:360", "20ms 2:KBDPR:30:1",
               "30ms 2:MOUSEMOVE_REL:320:360", "40ms 2:WHEEL:0:72:0:-72", "50ms 2:LSTICKAXIS:1:2", "60ms text TEXT:abc",
               "70ms > vcontrol 7 a.json command|first|second");
}

TEST_F(ReplayTime, WhatCannotBeReadTakesItsTime) {
  Save("a.json",
       {Step(100, "gesture", "press:1"), Step(100, "Keyboard", "keyboard_press:30"), Step(100, "keyboard", "nothing"),
        Step(100, "raw_input", "press:A"), Step(100, "touch", "press_rel:x"), KeyDown(100, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(1000);
  EXPECT_LINES("600ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, APauseInTheFileIsOnlyAPause) {
  Save("a.json", {Step(100, "timer", "keyboard_press:30"), KeyDown(100, 17), KeyUp(1000, 17)});
  Start(7, "a.json");
  Wait(500);
  EXPECT_LINES("200ms 2:KBDPR:17:1");
}

TEST_F(ReplayTime, AnActionWithoutTypeEndsIt) {
  for (const QJsonValue& end : {QJsonValue(Step(500, "", "keyboard_press:17")), QJsonValue(17)}) {
    Save("a.json", {KeyDown(100, 30), end, KeyUp(0, 30)});
    Start(7, "a.json");
    TakeStory();
    Wait(99);
    EXPECT_STORY_NONE();
    Wait(901);
    const QStringList story = TakeStory();
    EXPECT_EQ(1, story.filter("2:KBDPR:30:1").size());
    EXPECT_EQ(1, story.filter("> finished 7 a.json").size());
    EXPECT_TRUE(story.filter("KBDRL").isEmpty());
    // With the previous action, whatever its own delay is.
    for (const QString& entry : story) EXPECT_EQ(story.first().section(' ', 0, 0), entry.section(' ', 0, 0));
    Stop(7, "a.json");
    TakeStory();
  }
}

TEST_F(ReplayTime, RepeatsHaveTheirPause) {
  Save("a.json", {KeyDown(10, 30), KeyUp(10, 30)}, {{"repeat_times", 2}, {"repeat_delay", 1000}});
  Start(7, "a.json");
  Wait(1039);
  EXPECT_LINES("10ms 2:KBDPR:30:1", "20ms 2:KBDRL:30:0", "1030ms 2:KBDPR:30:1");
}

// ---- The end ----

// The last action was signalled before, but the main thread performs it, while the worker signals the end.
TEST_F(ReplayTime, TheEndReleasesTheMacroSlotsOfTheLiveDisplay) {
  Save("a.json", {TouchDown(100, 0, "(0.5,0.5)"), KeyDown(100, 30)});
  Start(7, "a.json", 2.0, true);
  Wait(50);
  TakeStory();
  Wait(50);
  EXPECT_STORY("100ms ! status 0", "100ms 1:SLOTRELEASE:18", "100ms 1:SLOTRELEASE:19", "100ms 1:SLOTRELEASE:20",
               "100ms 1:SLOTRELEASE:21", "100ms 1:SLOTRELEASE:22", "100ms 1:SLOTRELEASE:23", "100ms 1:SLOTRELEASE:24",
               "100ms 1:SLOTRELEASE:25", "100ms > finished 7 a.json 2 1", "100ms 2:KBDPR:30:1");
  Wait(10000);
  EXPECT_STORY_NONE();
}

TEST_F(ReplayTime, TheEndEmptiesThePool) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), KeyDown(10, 30)});
  Start(7, "a.json");
  Wait(100);
  Save("b.json", {TouchDown(10, 3, "(0.25,0.5)"), KeyDown(1000, 30)});
  Start(8, "b.json");
  TakeStory();
  Wait(100);
  EXPECT_LINES("110ms 2:SLOTPRESS:18:18:1:1:320:360");
}

TEST_F(ReplayTime, AnEmptyListIsOverBeforeItStarts) {
  Save("a.json", {});
  Start(7, "a.json", 1.5);
  EXPECT_STORY("0ms ! status 0", "0ms 1:SLOTRELEASE:18", "0ms 1:SLOTRELEASE:19", "0ms 1:SLOTRELEASE:20",
               "0ms 1:SLOTRELEASE:21", "0ms 1:SLOTRELEASE:22", "0ms 1:SLOTRELEASE:23", "0ms 1:SLOTRELEASE:24",
               "0ms 1:SLOTRELEASE:25", "0ms > finished 7 a.json 1.5 0", "0ms > started 7 a.json");
}

TEST_F(ReplayTime, AnEndedReplayStaysForARestart) {
  Save("a.json", {KeyDown(100, 30)});
  Start(7, "a.json");
  Wait(1000);
  TakeStory();
  Restart(7, "a.json");
  Wait(1000);
  EXPECT_REPLAY_CALLS("1000ms > started 7 a.json", "1100ms > finished 7 a.json 1 0");
}

TEST_F(ReplayTime, AHostMayRestartFromTheEnd) {
  static QString file;
  file = Save("a.json", {KeyDown(100, 30)});
  static int ends = 0;
  table_.finished = [](int id, const QString& name, ReplayParam param) {
    if (++ends < 3) RestartReplay(id, name, param);
  };
  Start(7, "a.json");
  Wait(1000);
  EXPECT_EQ(3, ends);
  EXPECT_EQ((QStringList{"100ms 2:KBDPR:30:1", "200ms 2:KBDPR:30:1", "300ms 2:KBDPR:30:1"}),
            TakeLines().filter("KBDPR"));
}

// ---- Speed ----

TEST_F(ReplayTime, TheSpeedDividesEachDelayAndTheRestIsDropped) {
  Save("a.json", {KeyDown(33, 30), KeyUp(33, 30), KeyDown(1, 17), KeyUp(1000, 17)});
  Start(7, "a.json", 2.0);
  Wait(500);
  EXPECT_LINES("16ms 2:KBDPR:30:1", "32ms 2:KBDRL:30:0", "32ms 2:KBDPR:17:1");
}

TEST_F(ReplayTime, TheSpeedOfTheFileIsAFactorMore) {
  Save("a.json", {KeyDown(300, 30), KeyUp(3000, 30)}, {{"speed_ratio", 1.5}});
  Start(7, "a.json", 2.0);
  Wait(500);
  EXPECT_LINES("100ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, HalfTheSpeedIsTwiceTheTime) {
  Save("a.json", {KeyDown(100, 30), KeyUp(3000, 30)});
  Start(7, "a.json", 0.5);
  Wait(1000);
  EXPECT_LINES("200ms 2:KBDPR:30:1");
}

// Depends on the product, not on its factors.
TEST_F(ReplayTime, NoSpeedIsNormalSpeed) {
  Save("a.json", {KeyDown(100, 30), KeyUp(3000, 30)});
  Save("negative.json", {KeyDown(100, 17), KeyUp(3000, 17)}, {{"speed_ratio", -4}});
  Start(1, "a.json", 0);
  Start(2, "a.json", -3);
  Start(3, "negative.json", 1);
  Start(4, "negative.json", -0.5);
  Wait(500);
  EXPECT_LINES("50ms 2:KBDPR:17:1", "100ms 2:KBDPR:30:1", "100ms 2:KBDPR:30:1", "100ms 2:KBDPR:17:1");
}

TEST_F(ReplayTime, ARestartKeepsTheSpeed) {
  Save("a.json", {KeyDown(100, 30), KeyUp(1000, 30)});
  Start(7, "a.json", 2.0);
  Wait(200);
  Restart(7, "a.json", 10.0);
  TakeStory();
  Wait(200);
  EXPECT_LINES("250ms 2:KBDPR:30:1");
}

// ---- Pause ----

TEST_F(ReplayTime, APauseKeepsTheRestOfTheDelay) {
  Save("a.json", {KeyDown(1000, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(300);
  Pause(7, "a.json");
  Wait(2000);
  Resume(7, "a.json");
  EXPECT_REPLAY_CALLS("0ms > started 7 a.json", "300ms > paused 7 a.json", "2300ms > resumed 7 a.json");
  Wait(699);
  EXPECT_STORY_NONE();
  Wait(1);
  EXPECT_LINES("3000ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, APauseLetsGoOfInputOnTheDisplayThatIsShown) {
  Settings().keyboard_transparent = true;
  Load(3);
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  Play("down K");
  TakeStory();
  Pause(7, "a.json");
  EXPECT_TRUE(TakeLines().contains("0ms 3:KBDRL:37:0"));
}

// 1000 - 300; then 800 since the last start are more than the 700 that are left.
TEST_F(ReplayTime, ASecondPauseTakesTheSameTimeAgain) {
  Save("a.json", {KeyDown(1000, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(300);
  Pause(7, "a.json");
  Wait(100);
  Pause(7, "a.json");  // 700 - 400
  Wait(1000);
  EXPECT_REPLAY_CALLS("0ms > started 7 a.json", "300ms > paused 7 a.json", "400ms > paused 7 a.json");
  Resume(7, "a.json");
  TakeStory();
  Wait(299);
  EXPECT_STORY_NONE();
  Wait(1);
  EXPECT_LINES("1700ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, PausesNeverTakeMoreThanThereIs) {
  Save("a.json", {KeyDown(1000, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(600);
  Pause(7, "a.json");
  Pause(7, "a.json");  // 400 - 600
  Resume(7, "a.json");
  TakeStory();
  Wait(1);
  EXPECT_LINES("600ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, APauseCountsFromTheLastAction) {
  Save("a.json", {KeyDown(200, 30), KeyUp(1000, 30), KeyDown(5000, 17)});
  Start(7, "a.json");
  Wait(500);
  Pause(7, "a.json");  // 300 of 1000 have passed
  Wait(100);
  Resume(7, "a.json");
  TakeStory();
  Wait(699);
  EXPECT_STORY_NONE();
  Wait(1);
  EXPECT_LINES("1300ms 2:KBDRL:30:0");
  Wait(5000);  // the delays after it are complete
  EXPECT_EQ("6300ms 2:KBDPR:17:1", TakeLines().last().toStdString());
}

TEST_F(ReplayTime, AnotherPauseAfterAResumeCountsFromThatResume) {
  Save("a.json", {KeyDown(1000, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(300);
  Pause(7, "a.json");
  Resume(7, "a.json");  // 700 left
  Wait(300);
  Pause(7, "a.json");  // 400 left
  Wait(50);
  Resume(7, "a.json");
  TakeStory();
  Wait(399);
  EXPECT_STORY_NONE();
  Wait(1);
  EXPECT_LINES("1050ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, ResumingWhatRunsStartsItsDelayAgain) {
  Save("a.json", {KeyDown(1000, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(900);
  Resume(7, "a.json");
  EXPECT_REPLAY_CALLS("0ms > started 7 a.json", "900ms > resumed 7 a.json");
  Wait(999);
  EXPECT_STORY_NONE();
  Wait(1);
  EXPECT_LINES("1900ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, APauseResetsTheLiveDisplayInFull) {
  Save("a.json", {KeyDown(10, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(20);
  TakeStory();
  Pause(7, "a.json");
  // Called first; the reset follows on the main thread. It sweeps slots 0 to 17: the fixed ones and the taps.
  const QStringList story = TakeStory();
  EXPECT_EQ((QStringList{"20ms > paused 7 a.json", "20ms ! status 0"}), story.mid(0, 2));
  QStringList sweep;
  for (int slot = 0; slot < 18; ++slot) sweep.append(QStringLiteral("20ms 1:SLOTRELEASE:%1").arg(slot));
  EXPECT_EQ(sweep, story.mid(story.size() - 18));
}

TEST_F(ReplayTime, AResumePressesAgainWhatIsHeld) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), KeyDown(10, 30), KeyUp(5000, 30)});
  Start(7, "a.json");
  Wait(20);
  Pause(7, "a.json");
  TakeStory();
  Resume(7, "a.json");
  EXPECT_STORY("20ms 2:SLOTPRESS:18:18:1:1:640:360", "20ms 2:KBDPR:30:1", "20ms > resumed 7 a.json");
}

TEST_F(ReplayTime, AnEndedReplayCannotBePaused) {
  Save("a.json", {KeyDown(10, 30)});
  Start(7, "a.json");
  Wait(20);
  TakeStory();
  Pause(7, "a.json");
  EXPECT_STORY_NONE();
}

TEST_F(ReplayTime, ResumingAnEndedReplayEndsItAgain) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), TouchUp(10, 0)});
  Start(7, "a.json");
  Wait(20);
  TakeStory();
  Resume(7, "a.json");
  EXPECT_STORY("20ms ! status 0", "20ms 1:SLOTRELEASE:18", "20ms 1:SLOTRELEASE:19", "20ms 1:SLOTRELEASE:20",
               "20ms 1:SLOTRELEASE:21", "20ms 1:SLOTRELEASE:22", "20ms 1:SLOTRELEASE:23", "20ms 1:SLOTRELEASE:24",
               "20ms 1:SLOTRELEASE:25", "20ms > finished 7 a.json 1 0", "20ms > resumed 7 a.json");
}

TEST_F(ReplayTime, APausedReplayMayBeRestarted) {
  Save("a.json", {KeyDown(100, 30), KeyUp(100, 30)});
  Start(7, "a.json");
  Wait(150);
  Pause(7, "a.json");
  Wait(100);
  TakeStory();
  Restart(7, "a.json");
  EXPECT_STORY("250ms > started 7 a.json");
  Wait(100);
  EXPECT_STORY("350ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, ARunningReplayMayBeRestarted) {
  Save("a.json", {KeyDown(100, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(150);
  TakeStory();
  Restart(7, "a.json");
  Wait(100);
  EXPECT_STORY("150ms > started 7 a.json", "250ms 2:KBDPR:30:1");
}

TEST_F(ReplayTime, ARestartForgetsWhatIsHeld) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), KeyDown(10, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(30);
  Restart(7, "a.json");
  TakeStory();
  Resume(7, "a.json");
  EXPECT_STORY("30ms > resumed 7 a.json");
}

// ---- Emulation ----

class ReplayEmulation : public ReplayStory {
 protected:
  // Presses the middle of 1280 x 720 fifty times. The probability that none of them is moved is below 1e-47.
  int PressesOutsideTheMiddle(bool emulation_mode) {
    Save("a.json", {TouchDown(10, 0, "(0.5,0.5)")}, {{"repeat_times", 50}});
    Start(7, "a.json", 1.0, emulation_mode);
    Wait(1000);
    const QStringList presses = TakeLines().filter("SLOTPRESS");
    EXPECT_EQ(50, presses.size());
    return presses.size() - presses.filter(":640:360").size();
  }
};

TEST_F(ReplayEmulation, MovesContactsWhereTheStartAsksForIt) { EXPECT_GT(PressesOutsideTheMiddle(true), 0); }

TEST_F(ReplayEmulation, LeavesThemWhereTheStartDoesNot) { EXPECT_EQ(0, PressesOutsideTheMiddle(false)); }

TEST_F(ReplayEmulation, IsOffWhereNothingIsSaidOfIt) {
  for (int i = 0; i < 50; ++i) {
    ReplayManager::GetInstance()->OnReplayEventTriggered("touch", "press_rel:(0.5,0.5)", "0", {}, 7, "a.json");
    EXPECT_LINES("0ms 2:SLOTPRESS:18:18:1:1:640:360");
  }
}

}  // namespace
}  // namespace taviinputmanager
