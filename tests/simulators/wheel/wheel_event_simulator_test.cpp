#include "simulators/wheel/wheel_event_simulator.h"

#include "keymap/tavikeymapmanager.h"
#include "simulators/wheel/wheel_one_off_worker.h"
#include "slots/multipoint_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::WheelConfigItem;

// A display of 10000 x 10000, on which speed 10 moves 0.001 of it, 10 pixels, a tick.
class WheelKey : public Story {
 protected:
  WheelKey() {
    Host().window = {0, 0, 10000, 10000};
    Host().display = Host().touch = QRect(0, 0, 10000, 10000);
  }
  WheelConfigItem* AddWheel(const QString& key, int direction, const QString& axis, int duration_ms) {
    auto* item = Add<WheelConfigItem>("Wheel", key, {0.5, 0.5});
    item->direction = direction;
    item->speed = 10;
    item->axis = axis;
    item->duration_ms = duration_ms;
    return item;
  }
};

// duration 16: 16 / 8 = 2 steps, so 3 ticks.
TEST_F(WheelKey, ATapPlaysOneRunToItsEnd) {
  AddWheel("W", 1, "vertical", 16);
  Load();
  Play("down W; up W; wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("8ms 1:SLOTPRESS:11:11:1:1:5000:5000");
  Play("wait 100");
  EXPECT_WIRE("16ms 1:SLOTPRESS:11:11:1:1:5000:5010", "24ms 1:SLOTPRESS:11:11:1:1:5000:5020", "24ms 1:SLOTRELEASE:11");
}

TEST_F(WheelKey, MovesAlongItsAxisByItsDirection) {
  const struct {
    int direction;
    const char* axis;
    const char* second;
  } rows[] = {
      {1, "vertical", "5000:5010"},   {2, "vertical", "5000:4990"}, {1, "horizontal", "5010:5000"},
      {2, "horizontal", "4990:5000"}, {1, "", "5010:5000"},         {2, "Vertical", "4990:5000"},
  };
  for (const auto& row : rows) {
    AddWheel("W", row.direction, row.axis, 8);
    Load();
    Play("down W; up W; wait 100");
    EXPECT_EQ(QStringLiteral("16ms 1:SLOTPRESS:11:11:1:1:") + row.second, TakeWire().value(1)) << row.axis;
  }
}

TEST_F(WheelKey, AHeldKeyRepeatsItsRun) {
  AddWheel("W", 1, "vertical", 8);  // two ticks
  Load();
  Play("down W; wait 20; up W; wait 100");
  // The second run begins when the first has ended, at 16 ms, and is completed although the key is released at 20 ms.
  EXPECT_WIRE("8ms 1:SLOTPRESS:11:11:1:1:5000:5000", "16ms 1:SLOTPRESS:11:11:1:1:5000:5010", "16ms 1:SLOTRELEASE:11",
              "24ms 1:SLOTPRESS:11:11:1:1:5000:5000", "32ms 1:SLOTPRESS:11:11:1:1:5000:5010", "32ms 1:SLOTRELEASE:11");
}

// The other direction repeats as well: two ticks a run, the second run from 16 ms on.
TEST_F(WheelKey, AHeldKeyOfTheOtherDirectionRepeatsToo) {
  AddWheel("S", 2, "vertical", 8);
  Load();
  Play("down S; wait 20; up S; wait 100");
  EXPECT_WIRE("8ms 1:SLOTPRESS:11:11:1:1:5000:5000", "16ms 1:SLOTPRESS:11:11:1:1:5000:4990", "16ms 1:SLOTRELEASE:11",
              "24ms 1:SLOTPRESS:11:11:1:1:5000:5000", "32ms 1:SLOTPRESS:11:11:1:1:5000:4990", "32ms 1:SLOTRELEASE:11");
}

TEST_F(WheelKey, EachDirectionIsHeldByItself) {
  AddWheel("W", 1, "vertical", 8);
  AddWheel("S", 2, "vertical", 8);
  Load();
  Play("down W; up S; wait 17");  // the release of the other direction does not end this one
  EXPECT_EQ(3, TakeWire().size());
  Play("wait 16; up W; wait 100");
  EXPECT_EQ("48ms 1:SLOTRELEASE:11", TakeWire().last().toStdString());
}

TEST_F(WheelKey, AnyOtherDirectionMovesNothingAndEndsOnlyWithAReset) {
  AddWheel("W", 3, "vertical", 8);
  Load();
  Play("down W; up W; wait 1000");
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(MultipointSlotManager::GetInstance()->HasTouch());  // its slot stays taken
  Play("reset");
  Forget();
  Play("wait 1");
  EXPECT_WIRE_NONE();
  EXPECT_FALSE(MultipointSlotManager::GetInstance()->HasTouch());
}

TEST_F(WheelKey, AReleaseOfAnyOtherDirectionEndsBothRepeats) {
  AddWheel("W", 1, "vertical", 8);
  AddWheel("E", 3, "vertical", 8);
  Load();
  Play("down W; up E; wait 100");
  EXPECT_EQ("16ms 1:SLOTRELEASE:11", TakeWire().last().toStdString());
}

TEST_F(WheelKey, ASpeedOfZeroNeverEndsByItself) {
  AddWheel("W", 1, "vertical", 8)->speed = 0;
  Load();
  Play("down W; up W; wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(WheelKey, WithoutAFreeFingerNothingStarts) {
  AddWheel("W", 1, "vertical", 8);
  Load();
  for (int i = 0; i < 7; ++i) MultipointSlotManager::GetInstance()->PressAt(i, 9);
  Play("down W; wait 100; up W");
  EXPECT_WIRE_NONE();
}

TEST_F(WheelKey, AResetEndsTheRunAndItsRepeat) {
  AddWheel("W", 1, "vertical", 80);
  Load();
  Play("down W; wait 20; reset");
  Forget();
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(WheelKey, TwoStopsEndARunOnceAndOneFollows) {
  AddWheel("W", 1, "vertical", 80);
  Load();
  Play("down W; wait 20");
  Forget();
  Q_EMIT WheelEventSimulator::GetInstance()->StopOneOffWheel();
  Q_EMIT WheelEventSimulator::GetInstance()->StopOneOffWheel();
  Play("wait 8");
  EXPECT_WIRE("20ms 1:SLOTRELEASE:11", "28ms 1:SLOTPRESS:11:11:1:1:5000:5000");
}

// steps: 8 / 8 = 1, so the second move is the last of a run. The worker by itself continues and reports the end each
// time.
TEST_F(WheelKey, ABareWorkerTellsItsEndAtEachMoveAndStop) {
  WheelConfigItem item;
  item.direction = 1;
  item.speed = 10;
  item.duration_ms = 8;
  WheelOneOffWorker worker(&item, 11);
  QStringList said;
  QObject::connect(&worker, &WheelOneOffWorker::OneOffWheelPressed, [&said] { said << "move"; });
  QObject::connect(&worker, &WheelOneOffWorker::OneOffWheelFinished,
                   [&said](int slot) { said << QStringLiteral("end %1").arg(slot); });
  worker.OneOffProcess();
  Wait(24);
  worker.OneOffStop();
  worker.OneOffStop();
  EXPECT_EQ("move, move, end 11, move, end 11, end 11, end 11", said.join(", ").toStdString());
}

TEST_F(WheelKey, AKeymapLoadInTheMiddleOfARunIsSafe) {
  AddWheel("W", 1, "vertical", 80);
  Load();
  Play("down W; wait 20");
  Load();
  Play("wait 1000; up W");
  for (const QString& line : TakeWire()) EXPECT_FALSE(line.contains("PRESS")) << line.toStdString();
}

TEST_F(WheelKey, AnItemOfAnotherClassDoesNothing) {
  Add<tavikeymapmanager::ConfigItem>("Wheel", "W", {0.5, 0.5});
  Load();
  Play("down W; up W; wait 100");
  EXPECT_WIRE_NONE();
}

// ---- The item of a worker by itself ----

class WheelWorker : public WheelKey {
 protected:
  void Listen(WheelOneOffWorker* worker) {
    QObject::connect(worker, &WheelOneOffWorker::OneOffWheelPressed, [this](int slot, double x, double y) {
      said_ << QStringLiteral("%1 at %2,%3").arg(slot).arg(x).arg(y);
    });
    QObject::connect(worker, &WheelOneOffWorker::OneOffWheelFinished,
                     [this](int slot) { said_ << QStringLiteral("%1 finished").arg(slot); });
  }
  std::string Said() const { return said_.join("; ").toStdString(); }

 private:
  QStringList said_;
};

TEST_F(WheelWorker, KeepsItsItemAsItWasAtItsBeginning) {
  WheelConfigItem* item = AddWheel("W", 1, "vertical", 8);
  WheelOneOffWorker worker(item, 11);
  item->rel_x = 0.25;
  item->speed = 0;
  Listen(&worker);
  worker.OneOffProcess();
  Wait(16);
  EXPECT_EQ("11 at 0.5,0.5; 11 at 0.5,0.501; 11 finished", Said());
}

// A default item has a speed and no duration: one move, at its point, ends the run.
TEST_F(WheelWorker, WithoutAnItemPlaysADefaultOne) {
  WheelOneOffWorker worker(nullptr, 11);
  Listen(&worker);
  worker.OneOffProcess();
  Wait(8);
  EXPECT_EQ("11 at 0,0; 11 finished", Said());
}

}  // namespace
}  // namespace taviinputmanager
