#include "simulators/tap/bunch_tap_event_simulator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <Poco/Logger.h>
#include <Poco/Message.h>

#include "core/clock.h"
#include "core/input_logger.h"
#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "slots/multipoint_slot_manager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::BunchClickConfigItem;
using tavikeymapmanager::ConfigItem;

// Key W taps at (320, 360) of the usual display, which takes slot 11; E at (640, 360).
class BunchTap : public Story {
 protected:
  BunchClickConfigItem* AddContinue(const QString& key, const QPointF& point, int frequency) {
    auto* item = Add<BunchClickConfigItem>("BunchClick", key, point);
    item->bunch_mode = "Continue";
    item->bunch_frequency = frequency;
    return item;
  }
  BunchClickConfigItem* AddOneOff(const QString& key, const QPointF& point, int count) {
    auto* item = Add<BunchClickConfigItem>("BunchClick", key, point);
    item->bunch_mode = "One_Off";
    item->bunch_frequency = 1;  // not read
    item->bunch_count = count;
    return item;
  }
  static void ResetAt(int mode) { InputStatusManager::GetInstance()->ResetGuestState(mode, 0); }

  const QPointF w_{0.25, 0.5};
  const QPointF e_{0.5, 0.5};
};

// 20 taps per second: 500 / 20 = 25 ms down, 25 ms up.
TEST_F(BunchTap, TapsForAsLongAsItsKeyIsHeld) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W; wait 24");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360");
  Play("wait 1");
  EXPECT_WIRE("25ms 1:SLOTRELEASE:11");
  Play("wait 24");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("50ms 1:SLOTPRESS:11:11:1:1:320:360");
  Play("wait 50");
  EXPECT_WIRE("75ms 1:SLOTRELEASE:11", "100ms 1:SLOTPRESS:11:11:1:1:320:360");
}

TEST_F(BunchTap, AReleaseLiftsAFingerThatIsDown) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W; wait 10; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "10ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, AReleaseBetweenTapsLiftsOnceMore) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W; wait 30; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "25ms 1:SLOTRELEASE:11", "30ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, AQuickTapIsOneTap) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, APressAndReleaseInOneGoIsOneTap) {
  auto* item = AddContinue("W", w_, 20);
  Load();
  auto* simulator = BunchTapEventSimulator::GetInstance();
  simulator->Press(item, &item->key);
  simulator->Release(item, &item->key);
  EXPECT_WIRE_NONE();  // the run begins when the key handler has returned
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, HalfOfATapIsHalfOfTheFrequencyCutToWholeMilliseconds) {
  const struct {
    int frequency;
    int period_ms;
  } rows[] = {
      {1, 500}, {3, 166}, {10, 50}, {300, 1}, {500, 1},  // 500 / 3 = 166.67, 500 / 300 = 1.67
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.frequency);
    AddContinue("W", w_, row.frequency);
    Load();
    Play("down W");
    Wait(row.period_ms - 1);
    EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360");
    Wait(1);
    EXPECT_EQ((QStringList{QStringLiteral("%1ms 1:SLOTRELEASE:11").arg(row.period_ms)}), TakeWire());
  }
}

TEST_F(BunchTap, AboveFiveHundredItTapsAsOftenAsItCan) {
  AddContinue("W", w_, 501);  // 500 / 501 is cut to 0
  Load();
  Play("down W; wait 10; up W");
  const QStringList lines = TakeWire();
  EXPECT_GE(lines.size(), 10);
  for (int i = 0; i + 1 < lines.size(); ++i) EXPECT_EQ(i % 2 == 0, lines[i].contains("SLOTPRESS")) << i;
  EXPECT_EQ("10ms 1:SLOTRELEASE:11", lines.last().toStdString());
  Play("wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(BunchTap, AFrequencyWithoutAPeriodHoldsTheFinger) {
  for (const int frequency : {0, -10, -1000}) {
    SCOPED_TRACE(frequency);
    AddContinue("W", w_, frequency);
    Load();
    Play("down W; wait 5000; up W; wait 100");
    EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "5000ms 1:SLOTRELEASE:11");
  }
}

// Two taps of 25 ms down and 25 ms up; the end comes with the last release and releases again.
TEST_F(BunchTap, AOneOffRunBeginsWhenItsKeyComesUp) {
  AddOneOff("W", w_, 2);
  Load();
  Play("down W; wait 100");
  EXPECT_WIRE_NONE();
  Play("up W; wait 74");
  EXPECT_WIRE("100ms 1:SLOTPRESS:11:11:1:1:320:360", "125ms 1:SLOTRELEASE:11", "150ms 1:SLOTPRESS:11:11:1:1:320:360");
  Play("wait 1");
  EXPECT_WIRE("175ms 1:SLOTRELEASE:11", "175ms 1:SLOTRELEASE:11");
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(BunchTap, ACountOfZeroIsOneTapWithoutLength) {
  AddOneOff("W", w_, 0);
  Load();
  Play("down W; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, ACountBelowZeroIsNeverReached) {
  AddOneOff("W", w_, -1);
  Load();
  Play("down W; up W; wait 1000");
  // One press at 0 ms and a beat at each of 25, 50, ... 1000 ms.
  EXPECT_EQ(41, TakeWire().size());
}

TEST_F(BunchTap, AnyOtherModeIsOneOff) {
  for (const char* mode : {"continue", "", "Hold"}) {
    SCOPED_TRACE(mode);
    AddOneOff("W", w_, 1)->bunch_mode = mode;
    Load();
    Play("down W; wait 10; up W; wait 1000");
    EXPECT_WIRE("10ms 1:SLOTPRESS:11:11:1:1:320:360", "35ms 1:SLOTRELEASE:11", "35ms 1:SLOTRELEASE:11");
  }
}

TEST_F(BunchTap, OneOffRunsOfOneKeyRunSideBySide) {
  AddOneOff("W", w_, 1);
  Load();
  Play("up W; wait 10; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "10ms 1:SLOTPRESS:11:11:1:1:320:360", "25ms 1:SLOTRELEASE:11",
              "25ms 1:SLOTRELEASE:11", "35ms 1:SLOTRELEASE:11", "35ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, EachHeldKeyHasItsOwnRhythmAndFinger) {
  AddContinue("W", w_, 20);  // every 25 ms
  AddContinue("E", e_, 10);  // every 50 ms
  Load();
  Play("down W; wait 10; down E; wait 50");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "10ms 1:SLOTPRESS:12:12:1:1:640:360", "25ms 1:SLOTRELEASE:11",
              "50ms 1:SLOTPRESS:11:11:1:1:320:360", "60ms 1:SLOTRELEASE:12");
  Play("up W; wait 60");  // the other continues
  EXPECT_WIRE("60ms 1:SLOTRELEASE:11", "110ms 1:SLOTPRESS:12:12:1:1:640:360");
  Play("up E; wait 100");
  EXPECT_WIRE("120ms 1:SLOTRELEASE:12");
}

TEST_F(BunchTap, TwoOnOnePointShareAFingerAndInterfere) {
  AddContinue("W", w_, 20);
  AddContinue("E", w_, 20);
  Load();
  Play("down W; wait 10; down E; wait 25");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "10ms 1:SLOTPRESS:11:11:1:1:320:360", "25ms 1:SLOTRELEASE:11",
              "35ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, OneReleaseEndsBothRunsOfAKeyPressedTwice) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W; wait 10; down W; wait 5; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "10ms 1:SLOTPRESS:11:11:1:1:320:360", "15ms 1:SLOTRELEASE:11",
              "15ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, TwoReleasesOnTheirWayEndARunOnce) {
  auto* item = AddContinue("W", w_, 20);
  Load();
  Play("down W; wait 10");
  Forget();
  BunchTapEventSimulator::GetInstance()->Release(item, &item->key);
  BunchTapEventSimulator::GetInstance()->Release(item, &item->key);
  Wait(1000);
  EXPECT_WIRE("10ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, GoesOnWithoutAFingerAndTriesAgainAtEachPress) {
  AddContinue("W", w_, 20);
  Load();
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  for (int i = 0; i < 7; ++i) pool->PressAt(i, 9);
  Play("down W; wait 40");
  EXPECT_WIRE_NONE();  // no press at 0 ms, and nothing to lift at 25 ms
  pool->ReleaseSlot(13);
  Play("wait 40");
  EXPECT_WIRE("50ms 1:SLOTPRESS:13:13:1:1:320:360", "75ms 1:SLOTRELEASE:13");
}

TEST_F(BunchTap, EndsInSilenceWhereItNeverHadAFinger) {
  AddContinue("W", w_, 20);
  Load();
  for (int i = 0; i < 7; ++i) MultipointSlotManager::GetInstance()->PressAt(i, 9);
  Play("down W; wait 40; up W; wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(BunchTap, AMouseButtonTapsAndStops) {
  AddContinue("Mouse Right", w_, 20);
  Load();
  Play("mouse down right 100,100; wait 30; mouse up right 100,100; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "25ms 1:SLOTRELEASE:11", "30ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, AJoystickButtonTapsAndStopsByItsName) {
  Load();  // gives the display
  AddContinue("Pad A", w_, 20);
  AddContinue("Pad B", e_, 20);
  LoadJoystick();
  Play("joy down A; joy down B; wait 10; joy up A; wait 20");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTPRESS:12:12:1:1:640:360", "10ms 1:SLOTRELEASE:11",
              "25ms 1:SLOTRELEASE:12");
}

// The lines of the sweep itself are ignored.
TEST_F(BunchTap, AResetOfInputLetsAllRunsGoOn) {
  AddContinue("W", w_, 20);
  AddOneOff("E", e_, 3);
  Load();
  Play("down W; up E; wait 30");
  ResetAt(kResetInput);
  Forget();
  Play("wait 20");
  EXPECT_WIRE("50ms 1:SLOTPRESS:11:11:1:1:320:360", "50ms 1:SLOTPRESS:12:12:1:1:640:360");
}

TEST_F(BunchTap, AFullResetEndsHeldKeysOnly) {
  AddContinue("W", w_, 20);
  AddOneOff("E", e_, 2);
  Load();
  Play("down W; up E; wait 30");
  ResetAt(kResetFull);
  Forget();
  Play("wait 1000");
  EXPECT_WIRE("30ms 1:SLOTRELEASE:11", "50ms 1:SLOTPRESS:12:12:1:1:640:360", "75ms 1:SLOTRELEASE:12",
              "75ms 1:SLOTRELEASE:12");
}

TEST_F(BunchTap, AResetOfEverythingEndsOneOffRunsToo) {
  AddContinue("W", w_, 20);
  AddOneOff("E", e_, 2);
  Load();
  Play("down W; up E; wait 30");
  ResetAt(kResetAll);
  Forget();
  Play("wait 1000");
  EXPECT_WIRE("30ms 1:SLOTRELEASE:11", "30ms 1:SLOTRELEASE:12");
}

TEST_F(BunchTap, AKeymapLoadEndsAllRuns) {
  AddContinue("W", w_, 20);
  AddOneOff("E", e_, 5);
  Load();
  Play("down W; up E; wait 30");
  Load();  // the items are deleted
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(BunchTap, AJoystickLoadLetsARunGoOnFromItsCopy) {
  Load();  // gives the display
  AddOneOff("Pad A", w_, 2);
  LoadJoystick();
  Play("joy down A; joy up A; wait 10");
  LoadJoystick();  // the item is deleted, and time zero is now
  Play("wait 1000");
  EXPECT_WIRE("15ms 1:SLOTRELEASE:11", "40ms 1:SLOTPRESS:11:11:1:1:320:360", "65ms 1:SLOTRELEASE:11",
              "65ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, ABusyMainThreadGetsItsTapsLateButInOrder) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W");
  Forget();
  Clock::Sleep(80);
  EXPECT_WIRE_NONE();
  Wait(0);
  EXPECT_WIRE("80ms 1:SLOTRELEASE:11", "80ms 1:SLOTPRESS:11:11:1:1:320:360", "80ms 1:SLOTRELEASE:11");
}

TEST_F(BunchTap, AnItemOfAnotherClassDoesNothing) {
  Add<ConfigItem>("BunchClick", "W", w_);
  Load();
  Play("down W; wait 100; up W; wait 100");
  EXPECT_WIRE_NONE();
}

// The log is in the working directory.
class BunchTapLog : public BunchTap {
 protected:
  BunchTapLog() : before_(QDir::currentPath()) { QDir::setCurrent(folder_.path()); }
  ~BunchTapLog() override { QDir::setCurrent(before_); }

  int CountOfEnds() {
    QFile file(QStringLiteral("input_looger.txt_%1").arg(QCoreApplication::applicationPid()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return 0;
    return QString::fromUtf8(file.readAll()).count("on bunch tap finished\n");
  }

  QTemporaryDir folder_;
  QString before_;
};

TEST_F(BunchTapLog, NotesEachEndAsADebugLine) {
  AddContinue("W", w_, 20);
  Load();
  Play("down W; wait 10; up W");
  EXPECT_EQ(0, CountOfEnds());  // below the log's threshold
  InputLogger::GetInstance();
  Poco::Logger::get("input_logger").setLevel(Poco::Message::PRIO_DEBUG);
  Play("down W; wait 10; up W");
  EXPECT_EQ(1, CountOfEnds());
}

}  // namespace
}  // namespace taviinputmanager
