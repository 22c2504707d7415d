#include "simulators/view/staring_and_fire_event_simulator.h"

#include <memory>

#include "simulators/cast/spell_event_simulator.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/view_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ComposableConfigItem;
using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::FireConfigItem;
using tavikeymapmanager::ObserveConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::StaringConfigItem;

// The view contact, also the observing one, at a point.
QString ViewAt(int ms, int x, int y) { return QStringLiteral("%1ms 1:SLOTPRESS:1:1:1:1:%2:%3").arg(ms).arg(x).arg(y); }
QString ViewUp(int ms) { return QStringLiteral("%1ms 1:SLOTRELEASE:1").arg(ms); }
QString FireAt(int ms, int x, int y) { return QStringLiteral("%1ms 1:SLOTPRESS:3:3:1:1:%2:%3").arg(ms).arg(x).arg(y); }
QString FireUp(int ms) { return QStringLiteral("%1ms 1:SLOTRELEASE:3").arg(ms); }

class View : public ViewStory {
 protected:
  // Items that are in no keymap of the story.
  static void Press(ConfigItem* item, const QString& key = "F") {
    ConfigKey pressed = Key(key);
    StaringAndFireEventSimulator::GetInstance()->Press(item, &pressed);
  }
  static void Release(ConfigItem* item, const QString& key = "F") {
    ConfigKey pressed = Key(key);
    StaringAndFireEventSimulator::GetInstance()->Release(item, &pressed);
  }
};

// ---- The status ----

TEST_F(View, TheStaringKeyTurnsViewControlOnAndOffAtItsPress) {
  AddStaring();
  Load();
  Play("down F");
  EXPECT_CALLS("0ms status 1 F");
  EXPECT_WIRE(ViewUp(0));  // whatever the contact was down for
  Play("wait 5; up F");
  EXPECT_CALLS_NONE();
  EXPECT_WIRE_NONE();
  Play("rel 0,0; wait 5; down F");
  EXPECT_CALLS("10ms status 2 F");
  EXPECT_WIRE(ViewAt(5, 640, 360), ViewUp(10));
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
}

TEST_F(View, AFingerOfTheMouseLiftsWhereViewControlBegins) {
  AddStaring();
  Load();
  Play("mouse down left 100,100; down F; rel 1,1");
  EXPECT_WIRE(ViewAt(0, 100, 100), ViewUp(0), ViewAt(0, 640, 360));
}

TEST_F(View, AStaringKeyFromElsewhereTurnsViewControlOnInAKeymapWithout) {
  Load();
  StaringConfigItem item;
  item.type = "Staring";
  item.rel_x = 0.5;
  item.rel_y = 0.5;
  item.range_mode = "Infinite";
  Press(&item, "G");
  EXPECT_CALLS("0ms status 1 G");
  Play("rel 1,1");
  EXPECT_WIRE(ViewUp(0), ViewAt(0, 640, 360));
}

TEST_F(View, ObservingIsAStatusOfItsOwnOutsideViewControl) {
  AddStaring();
  AddObserve();
  Load();
  Play("down E");
  EXPECT_CALLS("0ms status 3 E");  // reported before the pause
  Play("rel 1,1; wait 10; up E");
  EXPECT_CALLS("50ms status 2 E");
  EXPECT_WIRE(ViewUp(0), ViewAt(40, 320, 360), ViewUp(50));
}

TEST_F(View, ObservingInAKeymapWithoutViewControlEndsInTheStatusOff) {
  AddObserve();
  Load();
  EXPECT_EQ(InputStatus::Normal, GetInputStatus());
  Play("down E; up E");
  EXPECT_CALLS("0ms status 3 E", "40ms status 2 E");
}

TEST_F(View, ObservingInsideViewControlLeavesTheStatus) {
  AddStaring();
  AddObserve();
  Stare();
  Play("down E; rel 1,1; up E");
  EXPECT_CALLS_NONE();
  EXPECT_EQ(InputStatus::Staring, GetInputStatus());
  EXPECT_WIRE(ViewUp(0), ViewAt(40, 320, 360), ViewUp(40));
}

TEST_F(View, ASecondObserveKeyDoesNothingButItsReleaseEndsTheObserving) {
  AddStaring();
  AddObserve("E");
  AddObserve("R")->rel_x = 0.75;
  Load();
  Play("down E");
  Forget();
  Play("down R; rel 1,1");
  EXPECT_CALLS_NONE();
  EXPECT_WIRE(ViewAt(40, 320, 360));
  Play("up R; up E");
  EXPECT_CALLS("40ms status 2 R");
  EXPECT_WIRE(ViewUp(40), ViewUp(40));
}

TEST_F(View, ASecondObserveKeyInsideViewControlIsIgnored) {
  AddStaring();
  AddObserve("E");
  AddObserve("R")->rel_x = 0.75;
  Stare();
  Play("down E; down R; rel 1,1");
  EXPECT_WIRE(ViewUp(0), ViewAt(40, 320, 360));  // one pause
}

TEST_F(View, ViewControlMayBeginWhileObserving) {
  AddStaring();
  AddObserve();
  Load();
  Play("down E; down F");
  EXPECT_CALLS("0ms status 3 E", "40ms status 1 F");
  EXPECT_WIRE(ViewUp(0), ViewUp(40));
  Play("rel 1,1; up E; rel 1,1");  // the observe key gets the counts until it is released
  EXPECT_CALLS_NONE();
  EXPECT_WIRE(ViewAt(40, 320, 360), ViewUp(40), ViewAt(40, 640, 360));
}

TEST_F(View, ViewControlMayEndWhileObserving) {
  AddStaring();
  AddObserve();
  Stare();
  Play("down E; down F");
  EXPECT_CALLS("40ms status 2 F");
  Forget();
  Play("up E");
  EXPECT_CALLS_NONE();
  EXPECT_WIRE(ViewUp(40));
}

TEST_F(View, LeavingViewControlForgetsTheObservingThatWentBefore) {
  AddStaring();
  Add<ComposableConfigItem>("Staring", "G");  // turns view control on without an item for counts
  AddObserve();
  Load();
  Play("down E; down F; down F; down G");
  EXPECT_EQ(InputStatus::Staring, GetInputStatus());
  Forget();
  Play("rel 1,1");
  EXPECT_WIRE_NONE();
}

TEST_F(View, LeavingViewControlForgetsItsItem) {
  AddStaring();
  Add<ComposableConfigItem>("Observe", "E");  // changes the status and uses no counts
  Load();
  Play("down F; rel 1,1; down F; down E");
  EXPECT_EQ(InputStatus::Observing, GetInputStatus());
  Forget();
  Play("rel 1,1");
  EXPECT_WIRE_NONE();
}

TEST_F(View, FiringLeavesTheStatus) {
  AddStaring();
  AddFire();
  Stare();
  PressFire();
  ReleaseFire();
  EXPECT_CALLS_NONE();
  EXPECT_EQ(InputStatus::Staring, GetInputStatus());
}

TEST_F(View, ItemsOfOtherTypesDoNothing) {
  AddStaring();
  Stare();
  ConfigItem item;
  item.type = "Click";
  Press(&item);
  Release(&item);
  item.type = "SpellCancel";
  Release(&item);
  EXPECT_WIRE_NONE();
  EXPECT_CALLS_NONE();
}

TEST_F(View, AStaringRecordOfAnotherClassMovesTheStatusAndNoFinger) {
  Add<ComposableConfigItem>("Staring", "F");
  Load();
  Play("down F; rel 1,1; rel 1,1");
  EXPECT_CALLS("0ms status 1 F");
  EXPECT_WIRE(ViewUp(0));
}

TEST_F(View, AnObserveRecordOfAnotherClassMovesTheStatusAndNoFinger) {
  Add<ComposableConfigItem>("Observe", "E");
  Load();
  Play("down E; rel 1,1; wait 1; up E");
  EXPECT_CALLS("0ms status 3 E", "1ms status 2 E");  // without a pause
  EXPECT_WIRE(ViewUp(1));
}

// ---- Whose the counts are ----

TEST_F(View, TheKeyThatCameLastHasTheCounts) {
  AddStaring();
  AddFire();
  AddObserve();
  Stare();
  PressFire();
  Play("down E; rel 0,0; rel 2,2");  // 40 ms: observing
  EXPECT_WIRE(FireAt(0, 960, 540), ViewUp(0), ViewUp(0), ViewAt(40, 320, 360), ViewAt(40, 322, 362));
  Play("up E; rel 3,3");  // the fire key does not get them back, though it is still held
  EXPECT_WIRE(ViewUp(40), ViewAt(40, 640, 360));
  ReleaseFire();
  EXPECT_WIRE(FireUp(40));
}

TEST_F(View, TheFirstKeyToGoUpGivesTheCountsToTheView) {
  AddStaring();
  AddFire();
  AddObserve();
  Stare();
  Play("down E");
  PressFire();
  Forget();
  Play("rel 2,2");  // firing
  ReleaseFire();
  Play("rel 3,3");  // the observe key does not get them back
  EXPECT_WIRE(FireAt(40, 962, 542), FireUp(40), ViewAt(40, 640, 360));
}

TEST_F(View, AStrayReleaseOfTheObserveKeyTakesTheCountsFromTheFireKey) {
  AddStaring();
  AddFire();
  AddObserve();
  Stare();
  PressFire();
  Play("rel 2,2; up E; rel 3,3; rel 4,4");
  EXPECT_WIRE(FireAt(0, 960, 540), ViewUp(0), FireAt(0, 962, 542), ViewUp(0), ViewAt(0, 640, 360), ViewAt(0, 644, 364));
}

TEST_F(View, WorkersAreConnectedOnce) {
  AddStaring();
  AddFire();
  Stare();
  PressFire();
  ReleaseFire();
  PressFire();
  EXPECT_WIRE(FireAt(0, 960, 540), ViewUp(0), FireUp(0), FireAt(0, 960, 540), ViewUp(0));  // one release per press
}

TEST_F(View, ASpellCancelIsHeardOnceAPress) {
  AddStaring();
  AddFire()->cancel_swipe_steps = 1;
  Stare();
  PressFire();
  ReleaseFire();
  PressFire();
  Forget();
  SpellCancelConfigItem cancel;
  cancel.type = "SpellCancel";
  Q_EMIT SpellEventSimulator::GetInstance()->sigSpellCancelPressed(cancel);
  // The point (0, 0) means no contact: the swipe releases it, and the release follows at once.
  EXPECT_WIRE(FireUp(0), FireUp(0));
}

// ---- Keymaps that end under it ----

TEST_F(View, ItemsMayDieRightAfterTheirKeyWentDown) {
  Load();
  auto staring = std::make_unique<StaringConfigItem>();
  staring->type = "Staring";
  staring->rel_x = 0.5;
  staring->rel_y = 0.5;
  staring->range_mode = QString("Range_") + "Window";
  Press(staring.get());
  staring.reset();
  auto fire = std::make_unique<FireConfigItem>();
  fire->type = "Fire";
  fire->rel_x = 0.75;
  fire->rel_y = 0.75;
  fire->relative_mode = true;
  fire->range_mode = QString("Fire_range_") + "unlimited";
  Press(fire.get());
  fire.reset();
  Play("rel 5,5");
  EXPECT_WIRE(ViewUp(0), FireAt(0, 960, 540), ViewUp(0), FireAt(0, 965, 545));
  ConfigItem released;
  released.type = "Fire";
  Release(&released);
  auto observe = std::make_unique<ObserveConfigItem>();
  observe->type = "Observe";
  observe->rel_x = 0.25;
  observe->rel_y = 0.5;
  Press(observe.get());
  observe.reset();
  Play("rel 5,5; rel 1,1");
  released.type = "Observe";
  Release(&released);
  Play("rel 5,5; rel 700,0");
  EXPECT_WIRE(FireUp(0), ViewUp(0), ViewAt(40, 320, 360), ViewAt(40, 326, 366), ViewUp(40), ViewAt(40, 640, 360),
              ViewUp(40));
}

TEST_F(View, AFireKeyHeldThroughALoadKeepsTheCountsUntilItsNextRelease) {
  AddStaring();
  AddFire();
  Stare();
  PressFire();
  AddStaring();
  AddFire()->rel_x = 0.5;
  Load();  // the old items are deleted, and the contacts are up
  ReleaseFire();
  EXPECT_WIRE(ViewUp(0));  // outside view control the left button belongs to the mouse
  Play("down F; rel 3,3");
  EXPECT_WIRE(ViewUp(0), FireAt(0, 963, 543));  // by the old button
  PressFire();                                  // one is held already
  EXPECT_WIRE_NONE();
  ReleaseFire();
  Play("rel 1,1");
  EXPECT_WIRE(FireUp(0), ViewAt(0, 640, 360));
  PressFire();
  EXPECT_WIRE(FireAt(0, 640, 540), ViewUp(0));  // the new button
}

TEST_F(View, ALiftAfterASpellCancelComesThroughALoad) {
  AddStaring();
  AddFire();
  Stare();
  PressFire();
  SpellCancelConfigItem cancel;
  cancel.type = "SpellCancel";
  cancel.cancel_delay_ms = 100;
  Q_EMIT SpellEventSimulator::GetInstance()->sigSpellCancelPressed(cancel);
  Wait(30);
  Load();
  Wait(69);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(FireUp(70));
}

TEST_F(View, AnObserveKeyHeldThroughALoadEndsWithItsRelease) {
  AddObserve();
  Load();
  Play("down E; rel 1,1");
  AddObserve()->rel_x = 0.75;
  Load();
  EXPECT_EQ(InputStatus::Normal, GetInputStatus());
  Play("up E");
  EXPECT_CALLS_NONE();  // that status ended with its keymap
  EXPECT_WIRE(ViewUp(0));
  Play("down E; rel 1,1");
  EXPECT_CALLS("0ms status 3 E");
  EXPECT_WIRE(ViewUp(0), ViewAt(40, 960, 360));
}

TEST_F(View, AnObserveKeyWhoseReleaseALoadTookAwayStaysInForce) {
  AddObserve();
  Load();
  Play("down E");
  AddObserve("R")->rel_x = 0.75;
  Load();
  Play("down R; rel 1,1; rel 2,2");  // without a pause, and at the old point: one is already held
  EXPECT_CALLS("0ms status 3 R");
  EXPECT_WIRE(ViewAt(0, 320, 360), ViewAt(0, 323, 363));
  Play("up R; down R; rel 1,1");
  EXPECT_WIRE(ViewUp(0), ViewUp(0), ViewAt(40, 960, 360));
}

TEST_F(View, ViewControlEndsWithItsKeymapAndSoDoesItsTimer) {
  AddStaring()->auto_reset_period_ms = 100;
  Stare();
  Play("rel 0,0");
  AddStaring()->rel_x = 0.25;
  Load();
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
  Wait(500);
  EXPECT_WIRE_NONE();
  Play("down F; rel 1,1");
  EXPECT_WIRE(ViewUp(500), ViewAt(500, 320, 360));  // the new keymap's centre
}

TEST_F(View, CountsThatStillReachAnOldItemFollowIt) {
  AddStaring();
  Stare();
  Add<ComposableConfigItem>("Observe", "E");  // changes the status and uses no counts
  Load();
  Play("down E; rel 1,1; rel 2,2");
  EXPECT_WIRE(ViewAt(0, 640, 360), ViewAt(0, 642, 362));
}

TEST_F(View, AResetLeavesTheItemsForTheNextCounts) {
  AddStaring();
  AddFire();
  Stare();
  PressFire();
  Play("reset");
  Forget();
  Play("down F; rel 4,4");  // the fire key is still held
  EXPECT_CALLS("0ms status 1 F");
  EXPECT_WIRE(ViewUp(0), FireAt(0, 964, 544));
  ReleaseFire();
  EXPECT_WIRE(FireUp(0));
}

}  // namespace
}  // namespace taviinputmanager
