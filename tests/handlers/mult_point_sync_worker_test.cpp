#include "handlers/mult_point_sync_worker.h"

#include "qt/touch_events.h"
#include "slots/mult_point_slot_manager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class Touch : public Story {
 protected:
  Touch() { Load(); }
};

TEST_F(Touch, EachPointIsAFingerWithALineOfItsOwn) {
  Play("touch begin 1:100,200 2:300,400");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:200", "0ms 1:SLOTMULTIPRESS:19:19:300:400");
  Play("wait 10; touch update 1:110,210 2:300,400");
  EXPECT_WIRE("10ms 1:SLOTMULTIPRESS:18:18:110:210", "10ms 1:SLOTMULTIPRESS:19:19:300:400");
  Play("wait 10; touch end");
  EXPECT_WIRE("20ms 1:SLOTMULTIRELEASE:18", "20ms 1:SLOTMULTIRELEASE:19");
  EXPECT_TRUE(MultPointSlotManager::GetInstance()->ActiveSlots().isEmpty());
}

TEST_F(Touch, AnUpdateReleasesWhatItDoesNotHaveBeforeItPresses) {
  Play("touch begin 1:100,200 2:300,400");
  Forget();
  // Point 1 is removed and leaves slot 18 to point 3.
  Play("touch update 2:301,401 3:500,600");
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:18", "0ms 1:SLOTMULTIPRESS:19:19:301:401", "0ms 1:SLOTMULTIPRESS:18:18:500:600");
}

TEST_F(Touch, PointsAreReleasedInTheOrderOfTheirIds) {
  Play("touch begin 7:100,200 3:300,400");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:200", "0ms 1:SLOTMULTIPRESS:19:19:300:400");
  Play("touch end; touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:19", "0ms 1:SLOTMULTIRELEASE:18");  // and nothing to end again
}

TEST_F(Touch, AMovedPointMovesInTheBookToo) {
  Play("touch begin 1:100,200; touch update 1:110,210");
  EXPECT_TRUE(MultPointSlotManager::GetInstance()->Contains({110, 210}));
  EXPECT_FALSE(MultPointSlotManager::GetInstance()->Contains({100, 200}));
}

TEST_F(Touch, ANinthFingerWaitsForAFreeSlot) {
  Play("touch begin 1:10,1 2:20,1 3:30,1 4:40,1 5:50,1 6:60,1 7:70,1 8:80,1 9:90,1");
  EXPECT_EQ("0ms 1:SLOTMULTIPRESS:25:25:80:1", TakeWire().last().toStdString());
  Play("touch update 1:10,1 2:20,1 3:30,1 4:40,1 5:50,1 6:60,1 7:70,1 8:80,1 9:91,1");
  EXPECT_EQ(8, TakeWire().size());
  Play("touch update 1:10,1 2:20,1 4:40,1 5:50,1 6:60,1 7:70,1 8:80,1 9:92,1");
  const QStringList lines = TakeWire();
  EXPECT_EQ("0ms 1:SLOTMULTIRELEASE:20", lines.first().toStdString());
  EXPECT_EQ("0ms 1:SLOTMULTIPRESS:20:20:92:1", lines.last().toStdString());
}

TEST_F(Touch, ANinthFingerThatNeverGotASlotIsNotReleased) {
  Play("touch begin 1:10,1 2:20,1 3:30,1 4:40,1 5:50,1 6:60,1 7:70,1 8:80,1 9:90,1");
  Forget();
  Play("touch end");
  EXPECT_EQ(8, TakeWire().size());
}

TEST_F(Touch, APointInTheCornerDoesNotHoldItsSlot) {
  Play("touch begin 1:0,0 2:5,6");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:0:0", "0ms 1:SLOTMULTIPRESS:18:18:5:6");
  Play("touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:18", "0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(Touch, TwoPointsAtOnePlaceShareASlot) {
  Play("touch begin 1:100,200 2:100,200");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:200", "0ms 1:SLOTMULTIPRESS:18:18:100:200");
}

TEST_F(Touch, AGestureWithoutEndKeepsItsSlotsAndIsForgotten) {
  Play("touch begin 1:100,200; touch begin 2:300,400");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:200", "0ms 1:SLOTMULTIPRESS:19:19:300:400");
  Play("touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:19");
  Play("touch begin 2:50,60 1:100,200");  // the old point still has its slot
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:19:19:50:60", "0ms 1:SLOTMULTIPRESS:18:18:100:200");
}

TEST_F(Touch, NoResetReachesAGesture) {
  Play("touch begin 1:100,200; reset full");
  Forget();
  Play("touch update 1:101,201; touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:101:201", "0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(Touch, AnyOtherTouchEventEndsTheGesture) {
  Play("touch begin 1:100,200");
  Forget();
  QTouchEvent cancel = qt::MakeTouchEvent(QEvent::TouchCancel, Qt::NoModifier, {});
  MultPointSyncWorker::GetInstance()->OnTouchEvent(&cancel);
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(Touch, PositionsAreCutToWholePixelsAndTurnedWithTheGuest) {
  Play("touch begin 1:100.9,200.9; touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:200", "0ms 1:SLOTMULTIRELEASE:18");
  // A window of 640 x 360 on an upright surface: (160.9, 90.9) is a quarter each way; turned by 90 it is
  // (1 - 0.25) * 720, 0.25 * 1280.
  Play("window 640x360; rotation 90; touchpanel 720x1280; touch begin 1:160.9,90.9; touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:540:320", "0ms 1:SLOTMULTIRELEASE:18");
  // In a portrait window of 360 x 640, upright again: (90, 160) is a quarter each way.
  Play("window 360x640; rotation 0; touch begin 1:90,160; touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:180:320", "0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(Touch, AWindowWithoutSizeHasNoPlaceToTouch) {
  Play("window 0x0; touch begin 1:100,200");
  EXPECT_WIRE_NONE();
  Play("window 1280x720; touch update 1:101,201; touch end");  // the point was recorded all the same
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:101:201", "0ms 1:SLOTMULTIRELEASE:18");
}

}  // namespace
}  // namespace taviinputmanager
