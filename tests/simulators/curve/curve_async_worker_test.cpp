// The worker of a curve without a run.
#include "simulators/curve/curve_async_worker.h"

#include <QPointF>

#include "slots/curve_slot_manager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::CurveConfigItem;

class CurveWorker : public Story {
 protected:
  static CurveConfigItem Item() {
    CurveConfigItem item;
    item.rel_x = 0.5;
    item.rel_y = 0.5;
    item.key = Key("W");
    item.curve_points = "0.25,0.5;0.125,0";
    return item;
  }
  void Listen(CurveAsyncWorker* worker) {
    QObject::connect(worker, &CurveAsyncWorker::CurvePointPressed,
                     [this](double x, double y) { said_.append(QStringLiteral("%1,%2").arg(x).arg(y)); });
    QObject::connect(worker, &CurveAsyncWorker::CurveFinished,
                     [this](bool forced) { said_.append(forced ? "forced" : "finished"); });
  }
  std::string Said() { return std::exchange(said_, {}).join(" ").toStdString(); }

 private:
  QStringList said_;
};

TEST_F(CurveWorker, TakesTheOriginWhenItIsMade) {
  const CurveConfigItem item = Item();
  const CurveAsyncWorker worker(&item);
  CurveSlotManager* finger = CurveSlotManager::GetInstance();
  finger->SetOffset(0.25, 0);
  EXPECT_EQ("SLOTPRESS:5:5:1:1:960:360\n", finger->BuildPressCommand().toStdString());
}

TEST_F(CurveWorker, FinishesATickAfterItsLastPoint) {
  const CurveConfigItem item = Item();
  CurveAsyncWorker worker(&item);
  Listen(&worker);
  worker.Process();
  Wait(16);
  EXPECT_EQ("0.25,0.5 0.125,0", Said());
  Wait(7);
  EXPECT_EQ("", Said());
  Wait(1);
  EXPECT_EQ("finished", Said());
}

TEST_F(CurveWorker, AnEmptyListFinishesAtTheFirstTick) {
  CurveConfigItem item = Item();
  item.curve_points.clear();
  item.curve_first_delay_ms = 20;
  CurveAsyncWorker worker(&item);
  Listen(&worker);
  worker.Process();
  Wait(19);
  EXPECT_EQ("", Said());
  Wait(1);
  EXPECT_EQ("finished", Said());
}

TEST_F(CurveWorker, IsStoppedByItsDeviceAndScanCode) {
  const CurveConfigItem item = Item();
  CurveAsyncWorker worker(&item);
  Listen(&worker);
  worker.Process();
  worker.Stop("keyboard", 18);
  worker.Stop("mouse", 17);
  EXPECT_EQ("", Said());
  worker.Stop("keyboard", 17);
  EXPECT_EQ("forced", Said());
  Wait(8);  // only its run ends the timer
  EXPECT_EQ("0.25,0.5", Said());
}

// Points at 8 and 16 ms, the end at 24 ms; its run would quit it now.
TEST_F(CurveWorker, TellsItsEndAtEachTickUntilItIsQuit) {
  const CurveConfigItem item = Item();
  CurveAsyncWorker worker(&item);
  Listen(&worker);
  worker.Process();
  Wait(31);
  EXPECT_EQ("0.25,0.5 0.125,0 finished", Said());
  Wait(1);
  EXPECT_EQ("finished", Said());
  Wait(16);
  EXPECT_EQ("finished finished", Said());
}

TEST_F(CurveWorker, AStopBehindItsEndIsToldToo) {
  const CurveConfigItem item = Item();
  CurveAsyncWorker worker(&item);
  Listen(&worker);
  worker.Process();
  Wait(24);
  worker.Stop("keyboard", 17);
  worker.Stop("keyboard", 17);
  EXPECT_EQ("0.25,0.5 0.125,0 finished forced forced", Said());
}

TEST_F(CurveWorker, KeepsItsItemAsItWasAtItsBeginning) {
  CurveConfigItem item = Item();
  CurveAsyncWorker worker(&item);
  item = CurveConfigItem();
  Listen(&worker);
  worker.Process();
  Wait(16);
  EXPECT_EQ("0.25,0.5 0.125,0", Said());
  worker.Stop("keyboard", 17);
  EXPECT_EQ("forced", Said());
}

TEST_F(CurveWorker, WithoutAnItemHasNoPoint) {
  CurveAsyncWorker worker(nullptr);
  Listen(&worker);
  worker.Process();
  Wait(8);
  EXPECT_EQ("finished", Said());
}

}  // namespace
}  // namespace taviinputmanager
