// A timer's slot can be called by name, by code that knows only the object.
#include <QMetaObject>

#include "simulators/cast/spell_event_simulator.h"
#include "simulators/view/eye_async_worker.h"
#include "simulators/view/gravity_sync_worker.h"
#include "simulators/walk/left_stick_walk_sync_worker.h"
#include "simulators/walk/right_walk_sync_worker.h"
#include "tests/simulators/cast/spell_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::EyeConfigItem;
using tavikeymapmanager::GravityConfigItem;
namespace keywords = tavikeymapmanager::keywords;

class TimerSlots : public SpellStory {
 protected:
  void SetUp() override { Load(); }
};

TEST_F(TimerSlots, TheEyeTakesAStepOfEightPixels) {
  Add<EyeConfigItem>("Eye", "", {0.5, 0.5})->key_right = Key("D");
  Load();
  Play("down D");
  EXPECT_WIRE("0ms 1:SLOTPRESS:7:7:1:1:640:360");
  ASSERT_TRUE(QMetaObject::invokeMethod(EyeAsyncWorker::GetInstance(), "TimerOutTime"));
  EXPECT_WIRE("0ms 1:SLOTPRESS:7:7:1:1:648:360");
}

TEST_F(TimerSlots, GravityTiltsByOneStep) {
  Add<GravityConfigItem>("Gravity")->key_right = Key("D");
  Load();
  Play("down D");
  Forget();
  ASSERT_TRUE(QMetaObject::invokeMethod(GravitySyncWorker::GetInstance(), "TimerOutTime"));
  EXPECT_CALLS("0ms gravity 0 0 1");
}

TEST_F(TimerSlots, TheWalksLift) {
  ASSERT_TRUE(QMetaObject::invokeMethod(RightWalkSyncWorker::GetInstance(), "ContinueWalkTimerOutTime"));
  EXPECT_WIRE("0ms 1:SLOTRELEASE:4");
  ASSERT_TRUE(QMetaObject::invokeMethod(LeftStickWalkSyncWorker::GetInstance(), "onStopTimerOutTime"));
  EXPECT_WIRE("0ms 1:SLOTRELEASE:8");
}

TEST_F(TimerSlots, ACastFollowsThePointer) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
  Load();
  Play("move 640,360; down Q; move 740,360");  // 100 pixels from the character are 20 from the button
  Forget();
  ASSERT_TRUE(QMetaObject::invokeMethod(SpellEventSimulator::GetInstance(), "TimerOutTime"));
  EXPECT_WIRE("0ms 1:SLOTPRESS:6:6:1:1:980:540");
}

}  // namespace
}  // namespace taviinputmanager
