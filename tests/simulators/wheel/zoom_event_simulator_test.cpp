#include "simulators/wheel/zoom_event_simulator.h"

#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "simulators/wheel/zoom_one_off_worker.h"
#include "slots/macro_slot_manager.h"
#include "slots/zoom_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ZoomConfigItem;

// A display of 10000 x 10000, on which speed 10 moves each finger 10 pixels a tick.
class ZoomKey : public Story {
 protected:
  ZoomKey() {
    Host().window = {0, 0, 10000, 10000};
    Host().display = Host().touch = QRect(0, 0, 10000, 10000);
  }
  ZoomConfigItem* AddZoom(const QString& key, int direction, const QString& axis, int duration_ms) {
    auto* item = Add<ZoomConfigItem>("Zoom", key, {0.5, 0.5});
    item->direction = direction;
    item->speed = 10;
    item->axis = axis;
    item->duration_ms = duration_ms;
    item->start_distance = 0.1;
    return item;
  }
};

// duration 24: 24 / 12 = 2 steps, so 3 ticks. The first slot, 18, is the negative one and holds the positive point.
TEST_F(ZoomKey, ATapPlaysOnePinch) {
  AddZoom("W", 1, "horizontal", 24);
  Load();
  Play("down W; up W; wait 11");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("12ms 1:SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000");
  Play("wait 100");
  EXPECT_WIRE("24ms 1:SLOTMULTIPRESS:18:18:6010:5000:19:19:3990:5000",
              "36ms 1:SLOTMULTIPRESS:18:18:6020:5000:19:19:3980:5000", "36ms 1:SLOTMULTIRELEASE:19:18");
}

TEST_F(ZoomKey, EveryAxisAndDirection) {
  const struct {
    const char* name;
    const char* axis;
    int direction;
    const char* first;
    const char* second;
  } rows[] = {
      {"apart", "horizontal", 1, "18:18:6000:5000:19:19:4000:5000", "18:18:6010:5000:19:19:3990:5000"},
      // together from 0.1 + 1 * 0.001
      {"together", "horizontal", 2, "18:18:6010:5000:19:19:3990:5000", "18:18:6000:5000:19:19:4000:5000"},
      {"up and down apart", "vertical", 1, "18:18:5000:6000:19:19:5000:4000", "18:18:5000:6010:19:19:5000:3990"},
      {"up and down together", "vertical", 2, "18:18:5000:6010:19:19:5000:3990", "18:18:5000:6000:19:19:5000:4000"},
      {"any other word is across", "diagonal", 1, "18:18:6000:5000:19:19:4000:5000", "18:18:6010:5000:19:19:3990:5000"},
  };
  for (const auto& row : rows) {
    AddZoom("W", row.direction, row.axis, 12);
    Load();
    Play("down W; up W; wait 100");
    const QString press = QStringLiteral("ms 1:SLOTMULTIPRESS:");
    EXPECT_EQ((QStringList{"12" + press + row.first, "24" + press + row.second, "24ms 1:SLOTMULTIRELEASE:19:18"}),
              TakeWire())
        << row.name;
  }
}

TEST_F(ZoomKey, FingersCanChangePlaces) {
  AddZoom("W", 1, "horizontal", 0)->swap_fingers = true;
  Load();
  Play("down W; up W; wait 100");
  EXPECT_WIRE("12ms 1:SLOTMULTIPRESS:18:18:4000:5000:19:19:6000:5000", "12ms 1:SLOTMULTIRELEASE:19:18");
}

TEST_F(ZoomKey, AHeldKeyPinchesAgainOnTwoFreshSlots) {
  AddZoom("W", 1, "horizontal", 0);
  Load();
  Play("down W; wait 13");
  EXPECT_WIRE("12ms 1:SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000", "12ms 1:SLOTMULTIRELEASE:19:18");
  MacroSlotManager::GetInstance()->Reserve(20);  // the second run has 18 and 19 already
  Play("wait 12; up W; wait 100");
  EXPECT_WIRE("24ms 1:SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000", "24ms 1:SLOTMULTIRELEASE:19:18",
              "36ms 1:SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000", "36ms 1:SLOTMULTIRELEASE:19:18");
}

TEST_F(ZoomKey, APressWhileAPinchIsFinishingIsIgnored) {
  AddZoom("W", 1, "horizontal", 12);
  AddZoom("S", 2, "horizontal", 12);
  Load();
  Play("down W; up W; down S; wait 100; up S");
  EXPECT_EQ(3, TakeWire().size());
}

TEST_F(ZoomKey, WithoutTwoSlotsNoKeyPinchesUntilTheBusyMarkIsReset) {
  AddZoom("W", 1, "horizontal", 0);
  Load();
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  for (int slot = 18; slot <= 24; ++slot) pool->Reserve(slot);
  Play("down W; up W; wait 100");
  EXPECT_WIRE_NONE();
  EXPECT_EQ(25, pool->FindFree());  // the one that it had taken is free again
  pool->Reset();
  Play("down W; up W; wait 100");
  EXPECT_WIRE_NONE();
  ZoomSlotManager::GetInstance()->Reset();
  Play("down W; up W; wait 100");
  EXPECT_EQ(2, TakeWire().size());
}

TEST_F(ZoomKey, AFullPoolLeavesTheSameMark) {
  AddZoom("W", 1, "horizontal", 0);
  Load();
  for (int slot = 18; slot <= 25; ++slot) MacroSlotManager::GetInstance()->Reserve(slot);
  Play("down W; up W; wait 100");
  EXPECT_TRUE(ZoomSlotManager::GetInstance()->busy);
}

TEST_F(ZoomKey, ADirectionOfNeitherKindHoldsItsSlotsUntilAReset) {
  AddZoom("W", 3, "horizontal", 12);
  Load();
  Play("down W; up W; wait 1000");
  EXPECT_WIRE_NONE();
  Play("reset");
  Forget();
  Play("wait 0");
  EXPECT_TRUE(MacroSlotManager::GetInstance()->ActiveSlots().isEmpty());
  EXPECT_FALSE(ZoomSlotManager::GetInstance()->busy);
}

TEST_F(ZoomKey, AKeyHeldDuringAResetStartsItsNextPinch) {
  AddZoom("W", 1, "horizontal", 120);
  Load();
  Play("down W; wait 20; reset");
  Forget();
  Play("wait 12");
  EXPECT_WIRE("32ms 1:SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000");
}

// The slots of a pinch are returned once, and one pinch follows.
TEST_F(ZoomKey, TwoResetsEndAPinchOnce) {
  AddZoom("W", 1, "horizontal", 120);
  Load();
  Play("down W; wait 20");
  Forget();
  Q_EMIT ZoomEventSimulator::GetInstance()->StopOneOffZoom();
  Q_EMIT ZoomEventSimulator::GetInstance()->StopOneOffZoom();
  Play("wait 12");
  EXPECT_WIRE("20ms 1:SLOTMULTIRELEASE:19:18", "32ms 1:SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000");
}

// steps: 12 / 12 = 1, so the second move is the last of a run. The worker by itself continues and reports the end each
// time.
TEST_F(ZoomKey, ABareWorkerTellsItsEndAtEachMoveAndStop) {
  ZoomConfigItem item;
  item.direction = 1;
  item.speed = 10;
  item.duration_ms = 12;
  ZoomOneOffWorker worker(&item, 19, 18);
  QStringList said;
  QObject::connect(&worker, &ZoomOneOffWorker::OneOffZoomPressed, [&said] { said << "move"; });
  QObject::connect(&worker, &ZoomOneOffWorker::OneOffZoomFinished, [&said](int positive, int negative) {
    said << QStringLiteral("end %1 %2").arg(positive).arg(negative);
  });
  worker.OneOffProcess();
  Wait(36);
  worker.OneOffStop();
  worker.OneOffStop();
  EXPECT_EQ("move, move, end 19 18, move, end 19 18, end 19 18, end 19 18", said.join(", ").toStdString());
}

TEST_F(ZoomKey, AKeymapLoadInTheMiddleIsSafe) {
  AddZoom("W", 1, "horizontal", 120);
  Load();
  Play("down W; wait 20; up W");
  Load();
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

// ---- The item of a worker by itself ----

class ZoomWorker : public ZoomKey {
 protected:
  void Listen(ZoomOneOffWorker* worker) {
    QObject::connect(worker, &ZoomOneOffWorker::OneOffZoomPressed, [this](const QString& cmd) { said_ += cmd; });
    QObject::connect(worker, &ZoomOneOffWorker::OneOffZoomFinished, [this] { said_ += "finished"; });
  }
  std::string Said() const { return said_.toStdString(); }

 private:
  QString said_;
};

TEST_F(ZoomWorker, KeepsItsItemAsItWasAtItsBeginning) {
  ZoomConfigItem* item = AddZoom("W", 1, "horizontal", 0);
  ZoomOneOffWorker worker(item, 19, 18);
  item->rel_x = 0.25;
  item->speed = 0;
  Listen(&worker);
  worker.OneOffProcess();
  Wait(12);
  EXPECT_EQ("SLOTMULTIPRESS:18:18:6000:5000:19:19:4000:5000\nfinished", Said());
}

// A default item has a speed and neither duration nor distance: one line, with both fingers at its point.
TEST_F(ZoomWorker, WithoutAnItemPlaysADefaultOne) {
  ZoomOneOffWorker worker(nullptr, 19, 18);
  Listen(&worker);
  worker.OneOffProcess();
  Wait(12);
  EXPECT_EQ("SLOTMULTIPRESS:18:18:0:0:19:19:0:0\nfinished", Said());
}

}  // namespace
}  // namespace taviinputmanager
