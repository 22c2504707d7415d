// The path of a fire finger to the point that cancels a cast.
#include <sstream>

#include <Poco/AutoPtr.h>
#include <Poco/Logger.h>
#include <Poco/StreamChannel.h>

#include "core/input_logger.h"
#include "tests/simulators/view/fire_story.h"
#include "tests/support/interruptions.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::FireConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;

TEST_F(Fire, SpellCancelSwipesToItsPointAndLiftsThere) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 3;
  StartFiring();
  PressSpellCancel(100);
  // From (960, 540) to (160, 180) in thirds of (-800, -360), without a pause.
  EXPECT_WIRE(FireAt(693, 420), FireAt(427, 300), FireAt(160, 180));
  EXPECT_EQ(QStringList({"stop listening", "give counts back"}), signals_);
  Wait(99);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE("100ms 1:SLOTRELEASE:3");
  Wait(500);
  EXPECT_WIRE_NONE();
}

// Half way from (960, 540) to (160, 180).
TEST_F(Fire, AKeyThatComesUpInsideTheSwipeToACancelLiftsTheFingerOnce) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 2;
  StartFiring();
  test::InterruptAt("1:SLOTPRESS:3:3:1:1:560:360", [this] { Feed("mouse up left 100,100"); });
  PressSpellCancel(100);
  EXPECT_WIRE(FireAt(560, 360), kFireUp);
  Wait(500);
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, SpellCancelStartsWhereTheFingerIs) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 2;
  StartFiring();
  Play("rel -400,-240");  // (560, 300); half way to (160, 180) is (360, 240)
  Forget();
  PressSpellCancel(100);
  EXPECT_WIRE(FireAt(360, 240), FireAt(160, 180));
}

TEST_F(Fire, AfterASpellCancelTheViewHasTheCountsAndTheKeyOnlyLifts) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(100);
  Play("rel 5,5");
  EXPECT_WIRE(FireAt(160, 180), kViewOnCentre);
  PressSpellCancel(100);  // nobody is connected anymore
  EXPECT_WIRE_NONE();
  signals_.clear();
  ReleaseFire();
  EXPECT_WIRE(kFireUp);
  EXPECT_TRUE(signals_.isEmpty());
  Wait(100);
  EXPECT_WIRE("100ms 1:SLOTRELEASE:3");  // the time of the cancel continues
}

TEST_F(Fire, SpellCancelWithoutDelayLiftsAtOnce) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(0);
  EXPECT_WIRE(FireAt(160, 180), kFireUp);
  Wait(500);
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, SpellCancelWithNegativeDelayStaysDownUntilTheKeyGoesUp) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(-1);
  Wait(500);
  EXPECT_WIRE(FireAt(160, 180));
  ReleaseFire();
  EXPECT_WIRE("500ms 1:SLOTRELEASE:3");
}

TEST_F(Fire, SpellCancelLeavesAFingerThatNoKeyHolds) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(-1);
  Forget();
  SpellCancelConfigItem cancel = SpellCancel(0);
  Press(&cancel);
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, SpellCancelWithoutStepsLiftsWhereTheFingerIs) {
  for (const int steps : {0, -1}) {
    AddStaring();
    AddFire()->cancel_swipe_steps = steps;
    StartFiring();
    PressSpellCancel(100);
    Wait(99);
    EXPECT_WIRE_NONE();
    Wait(1);
    EXPECT_WIRE("100ms 1:SLOTRELEASE:3");
    ReleaseFire();
  }
}

TEST_F(Fire, ASecondSpellCancelDoesNotPutTheLiftOff) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(100);
  ReleaseFire();
  Wait(50);
  PressFire();
  Forget();
  PressSpellCancel(100);
  EXPECT_WIRE("50ms 1:SLOTPRESS:3:3:1:1:160:180");
  Wait(50);
  EXPECT_WIRE("100ms 1:SLOTRELEASE:3");
  Wait(500);
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, TheLiftOfASpellCancelTakesALaterHoldOffTheButton) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(100);
  ReleaseFire();
  Wait(50);
  PressFire();
  Forget();
  Wait(49);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE("100ms 1:SLOTRELEASE:3");
  Play("rel 5,5");  // the key still holds it, and the counts bring it back
  EXPECT_WIRE("100ms 1:SLOTPRESS:3:3:1:1:965:545");
}

TEST_F(Fire, ASecondSpellCancelWithoutDelayLeavesTheLiftToTheFirst) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(100);
  ReleaseFire();
  PressFire();
  Forget();
  PressSpellCancel(0);
  EXPECT_WIRE(FireAt(160, 180));
  Wait(100);
  EXPECT_WIRE("100ms 1:SLOTRELEASE:3");
}

TEST_F(Fire, SpellCancelOfAFingerThatIsUpOnlyEndsTheHold) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  StartFiring();
  Play("reset");
  Forget();
  PressSpellCancel(100);
  Wait(500);
  EXPECT_WIRE_NONE();
  EXPECT_EQ(QStringList({"stop listening", "give counts back"}), signals_);
}

TEST_F(Fire, OnlyAHoldInRelativeModeListensToTheSpellCancelKey) {
  AddStaring();
  FireConfigItem* item = AddFire();
  item->relative_mode = false;
  item->cancel_swipe_steps = 1;
  StartFiring();
  PressSpellCancel(0);
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, TheSimulatorTakesASpellCancelInAnyStatus) {
  AddStaring();
  FireConfigItem* item = AddFire();
  item->relative_mode = false;
  item->cancel_swipe_steps = 1;
  StartFiring();
  Play("down F");  // off, with the fire contact still down
  Forget();
  SpellCancelConfigItem cancel = SpellCancel(0);
  Press(&cancel);
  EXPECT_WIRE(FireAt(160, 180), kFireUp);
  EXPECT_TRUE(signals_.isEmpty());
  Press(&cancel);  // nothing is fired anymore
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, ASpellCancelIsLogged) {
  AddStaring();
  AddFire();
  StartFiring();
  InputLogger::GetInstance();  // sets its own channel up, once
  std::ostringstream log;
  Poco::Logger& logger = Poco::Logger::get("input_logger");
  logger.setChannel(Poco::AutoPtr<Poco::StreamChannel>(new Poco::StreamChannel(log)));
  logger.setLevel(Poco::Message::PRIO_DEBUG);
  PressSpellCancel(0);
  EXPECT_EQ("simulate spell cancel event\n", log.str());
  logger.setLevel(Poco::Message::PRIO_ERROR);
  logger.setChannel(nullptr);
}

}  // namespace
}  // namespace taviinputmanager
