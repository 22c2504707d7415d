#include "simulators/view/observe_sync_worker.h"

#include "host/simulation/virtual_event_dispatcher.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/view_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ObserveConfigItem;

// The observing contact at a point, right after the pause of a press at time zero.
QString ObserverAt(int x, int y) { return QStringLiteral("40ms 1:SLOTPRESS:1:1:1:1:%1:%2").arg(x).arg(y); }

class Observe : public ViewStory {
 protected:
  // From a fresh load to 40 ms, with the key held.
  void StartObserving() {
    Load();
    Play("down E");
    EXPECT_WIRE("0ms 1:SLOTRELEASE:1");
    TakeCalls();
  }
};

TEST_F(Observe, LiftsWaitsAndPressesOnItsOwnPointAtTheNextCounts) {
  AddObserve();
  Load();
  const qint64 start = Time().NowMs();
  Play("down E");
  EXPECT_EQ(40, Time().NowMs() - start);  // the caller was blocked
  Play("rel 5,5");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:1", "40ms 1:SLOTPRESS:1:1:1:1:320:360");
  // The next move includes the five counts that pressed.
  Play("wait 10; rel 1,2");
  EXPECT_WIRE("50ms 1:SLOTPRESS:1:1:1:1:326:367");
  Play("wait 10; up E");
  EXPECT_WIRE("60ms 1:SLOTRELEASE:1");
}

TEST_F(Observe, EachMoveGoesOnFromWhereTheFingerIs) {
  AddObserve();
  StartObserving();
  Play("rel 0,0; rel 3,0; rel 3,-2");
  EXPECT_WIRE(ObserverAt(320, 360), ObserverAt(323, 360), ObserverAt(326, 358));
}

TEST_F(Observe, BothSensitivitiesMultiply) {
  ObserveConfigItem* item = AddObserve();
  item->sensitivity_x = 50;
  item->sensitivity_y = 200;
  item->sensitivity = 1.5;
  StartObserving();
  // 3 * 50 * 1.5 / 100 = 2.25, 3 * 200 * 1.5 / 100 = 9. Then -2 * 0.75 = -1.5, which rounds to -1, and -6.
  // What rounding cuts off is lost: 1 * 0.75 rounds to 1 each time.
  Play("rel 0,0; rel 3,3; rel -2,-2; rel 1,0; rel 1,0");
  EXPECT_WIRE(ObserverAt(320, 360), ObserverAt(322, 369), ObserverAt(321, 363), ObserverAt(322, 363),
              ObserverAt(323, 363));
}

TEST_F(Observe, TheIntervalHoldsForPressAndMoveAlike) {
  AddObserve()->move_interval_ms = 10;
  StartObserving();
  Play("rel 1,1; wait 9; rel 1,1");
  EXPECT_WIRE(ObserverAt(320, 360));
  Play("wait 1; rel 1,1");
  EXPECT_WIRE("50ms 1:SLOTPRESS:1:1:1:1:323:363");
  // The interval continues through a release; the pause of the next press is longer.
  Play("up E; down E; wait 1");
  EXPECT_WIRE("50ms 1:SLOTRELEASE:1", "50ms 1:SLOTRELEASE:1");
  Play("rel 1,1; wait 9; rel 1,1; wait 1; rel 1,1");
  EXPECT_WIRE("91ms 1:SLOTPRESS:1:1:1:1:320:360", "101ms 1:SLOTPRESS:1:1:1:1:323:363");
}

TEST_F(Observe, CountsThatWereNotSpentAreKeptForTheNextHold) {
  AddObserve()->move_interval_ms = 100;
  StartObserving();
  Play("rel 1,1; rel 2,2; up E; down E; wait 60");  // pressed at 40, here it is 140
  Forget();
  Play("rel 0,0; wait 100; rel 0,0");
  EXPECT_WIRE("140ms 1:SLOTPRESS:1:1:1:1:320:360", "240ms 1:SLOTPRESS:1:1:1:1:323:363");
}

TEST_F(Observe, HasNoRange) {
  AddObserve();
  StartObserving();
  Play("rel 0,0; rel 5000,-5000");
  EXPECT_WIRE(ObserverAt(320, 360), ObserverAt(5320, -4640));
}

TEST_F(Observe, AFingerThatComesToTheCornerLiftsAndPressesAgain) {
  AddObserve();
  StartObserving();
  Play("rel 0,0; rel -320,-360; rel 1,1; rel 1,1");
  // The move after the press includes the counts of the press.
  EXPECT_WIRE(ObserverAt(320, 360), "40ms 1:SLOTRELEASE:1", ObserverAt(320, 360), ObserverAt(322, 362));
}

TEST_F(Observe, ThePointIsRounded) {
  ObserveConfigItem* item = AddObserve();
  item->rel_x = 0.2503;  // 320.384
  item->rel_y = 0.2507;  // 180.504
  StartObserving();
  Play("rel 0,0");
  EXPECT_WIRE(ObserverAt(320, 181));
}

TEST_F(Observe, TheProductOfCountsAndSensitivityRunsOnPastTheRangeOfAnInt) {
  AddObserve();
  StartObserving();
  Play("rel 0,0; rel 42949673,0");  // times 100 is 4 more than 2^32: 0.04 pixels
  EXPECT_WIRE(ObserverAt(320, 360), ObserverAt(320, 360));
}

TEST_F(Observe, CountsWithoutAHeldKeyDoNothing) {
  ObserveSyncWorker::GetInstance()->OnObserveRelativeInput(5, 5);
  EXPECT_WIRE_NONE();
}

TEST_F(Observe, AReleaseWithoutPressLiftsAllTheSame) {
  AddObserve();
  Load();
  Play("up E");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:1");
  EXPECT_CALLS_NONE();
}

TEST_F(Observe, InsideViewControlTheViewFingerGoesAndComesBackOnItsCentre) {
  AddStaring();
  AddObserve();
  Stare();
  Play("rel 0,0; rel 9,9; down E; rel 4,4; rel 1,1; up E; rel 7,7; rel 1,1");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:640:360", "0ms 1:SLOTPRESS:1:1:1:1:649:369", "0ms 1:SLOTRELEASE:1",
              ObserverAt(320, 360), ObserverAt(325, 365), "40ms 1:SLOTRELEASE:1", "40ms 1:SLOTPRESS:1:1:1:1:640:360",
              "40ms 1:SLOTPRESS:1:1:1:1:641:361");
}

TEST_F(Observe, PointsAreOfTheDisplay) {
  AddObserve();
  Play("guest 720x1280; window 360x640; touchpanel 720x1280");
  StartObserving();
  Play("rel 0,0; rel 10,10");  // (180, 640) and (190, 650), half a window pixel each
  EXPECT_WIRE(ObserverAt(360, 1280), ObserverAt(380, 1300));
}

}  // namespace
}  // namespace taviinputmanager
