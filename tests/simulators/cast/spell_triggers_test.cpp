#include "keymap/keywords.h"
#include "simulators/cast/spell_event_simulator.h"
#include "tests/simulators/cast/spell_story.h"

// When the finger is put down and lifted: the four triggers.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

bool IsActive() { return SpellEventSimulator::GetInstance()->IsSpellActive(); }

class SpellTriggers : public SpellStory {
 protected:
  // 20 pixels of the finger to the right of the button: (980, 540).
  SpellTriggers() { PointTo(740, 360); }
};

TEST_F(SpellTriggers, ImmediateHoldsTheButtonWhileItsKeyIsDown) {
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMouse);
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540));
  EXPECT_TRUE(IsActive());
  PointTo(840, 360);
  Play("wait 100; down Q");  // the pointer does not aim, and a second press has no effect
  EXPECT_WIRE_NONE();
  Play("up Q");
  EXPECT_WIRE(Lift(100));
  EXPECT_FALSE(IsActive());
  Play("up Q");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellTriggers, OnReleaseSwipesFollowsAndCastsWithItsKey) {
  SpellConfigItem* item = AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
  item->press_hold_ms = 10;
  item->swipe_steps = 4;
  item->swipe_step_ms = 5;
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(10, 965, 540), At(15, 970, 540), At(20, 975, 540), At(25, 980, 540));
  EXPECT_TRUE(IsActive());

  // The timer counts from the end of the swipe: 25 + 16 = 41.
  PointTo(640, 260);
  Play("wait 15");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(41, 960, 520));
  PointTo(640, 160);
  Play("wait 16");
  EXPECT_WIRE(At(57, 960, 500));

  Play("wait 1; up Q");
  EXPECT_WIRE(Lift(58));
  EXPECT_FALSE(IsActive());
  Play("wait 100; up Q");  // ticks have nothing to do
  EXPECT_WIRE_NONE();
}

TEST_F(SpellTriggers, OnReleaseIgnoresASecondPressButStartsItsFramesAnew) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
  Load();
  Play("down Q; wait 10");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540));
  Play("down Q; wait 15");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(26, 980, 540));
}

TEST_F(SpellTriggers, OnNextAimsFromOnePressToTheNext) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse);
  Load();
  Play("down Q; up Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540));
  EXPECT_TRUE(IsActive());
  PointTo(840, 360);
  Play("wait 15");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(16, 1000, 540));
  Play("down Q");
  EXPECT_WIRE(Lift(16));
  EXPECT_FALSE(IsActive());
  Play("up Q; wait 100");
  EXPECT_WIRE_NONE();
  Play("down Q");  // and so on
  EXPECT_WIRE(At(116, 960, 540), At(116, 1000, 540));
}

TEST_F(SpellTriggers, OnPressCastsInThePress) {
  SpellConfigItem* item = AddSpell(keywords::kTriggerOnPress, keywords::kLocationMouse);
  item->press_hold_ms = 30;
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(30, 980, 540), Lift(30));
  EXPECT_FALSE(IsActive());
  Play("wait 100; up Q");
  EXPECT_WIRE_NONE();
  Play("down Q");  // a new gesture
  EXPECT_WIRE(At(130, 960, 540), At(160, 980, 540), Lift(160));
}

TEST_F(SpellTriggers, OnPressAtAnyOtherLocationIsActiveAndDoesNothing) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition);
  Load();
  Play("down Q; wait 100; up Q; down Q");
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(IsActive());
}

TEST_F(SpellTriggers, OnPressFollowsNoPointerAndIsNotFinished) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition)->mode = keywords::kModeCurve;
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMousePosition, "E");
  Load();
  Play("down Q; wait 100");
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(IsActive());
  Play("down E");
  EXPECT_WIRE(At(100, 960, 540));
}

TEST_F(SpellTriggers, OnPressOnTheInnerWalkIsATap) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationInnerSwipehold);
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), Lift(0));
  EXPECT_FALSE(IsActive());
}

TEST_F(SpellTriggers, AnUnknownTriggerCastsOnRelease) {
  AddSpell("Spell_Trigger_Immediate", keywords::kLocationMouse);  // an unknown spelling
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540));
  Play("up Q");
  EXPECT_WIRE(Lift(0));
}

// Without steps the finger jumps from the button to the target. No walk is under way, so that the present direction of
// a walk is (0, 0): the button once more.
TEST_F(SpellTriggers, EveryLocationHasItsWayOfPressing) {
  const QString press = At(0, 960, 540);
  const QString target = At(0, 980, 540);
  const struct {
    const char* name;
    QString trigger;
    QString location;
    QStringList down;
    QStringList up;
  } rows[] = {
      {"immediate, mouse", keywords::kTriggerImmediate, keywords::kLocationMouse, {press}, {Lift(0)}},
      {"immediate, position", keywords::kTriggerImmediate, keywords::kLocationMousePosition, {press}, {Lift(0)}},
      {"immediate, walk", keywords::kTriggerImmediate, keywords::kLocationSwipehold, {press, press}, {Lift(0)}},
      {"immediate, inner", keywords::kTriggerImmediate, keywords::kLocationInnerSwipehold, {press}, {Lift(0)}},
      {"release, mouse", keywords::kTriggerOnRelease, keywords::kLocationMouse, {press, target}, {Lift(0)}},
      {"release, position", keywords::kTriggerOnRelease, keywords::kLocationMousePosition, {press, target}, {Lift(0)}},
      {"release, walk", keywords::kTriggerOnRelease, keywords::kLocationSwipehold, {press, press}, {Lift(0)}},
      {"release, inner", keywords::kTriggerOnRelease, keywords::kLocationInnerSwipehold, {press}, {Lift(0)}},
      {"release, no location", keywords::kTriggerOnRelease, "", {press, target}, {Lift(0)}},
      {"next, mouse", keywords::kTriggerOnNext, keywords::kLocationMouse, {press, target}, {}},
      {"next, position", keywords::kTriggerOnNext, keywords::kLocationMousePosition, {press, target}, {}},
      {"next, walk", keywords::kTriggerOnNext, keywords::kLocationSwipehold, {press, press}, {}},
      {"next, inner", keywords::kTriggerOnNext, keywords::kLocationInnerSwipehold, {press}, {}},
      {"press, mouse", keywords::kTriggerOnPress, keywords::kLocationMouse, {press, target, Lift(0)}, {}},
      {"press, position", keywords::kTriggerOnPress, keywords::kLocationMousePosition, {}, {}},
      {"press, walk", keywords::kTriggerOnPress, keywords::kLocationSwipehold, {press, press, Lift(0)}, {}},
      {"press, inner", keywords::kTriggerOnPress, keywords::kLocationInnerSwipehold, {press, Lift(0)}, {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    AddSpell(row.trigger, row.location);
    Load();
    Play("down Q");
    EXPECT_EQ(TakeWire(), row.down);
    Play("up Q");
    EXPECT_EQ(TakeWire(), row.up);
  }
}

TEST_F(SpellTriggers, OnlyTheMouseLocationAndTheCurveFollowThePointer) {
  const struct {
    const char* name;
    QString location;
    QString mode;
    QStringList frame;
  } rows[] = {
      {"mouse", keywords::kLocationMouse, "", {At(16, 1000, 540)}},
      {"position", keywords::kLocationMousePosition, "", {}},
      {"position, intelligent", keywords::kLocationMousePosition, keywords::kModeIntelligent, {}},
      {"position, curve", keywords::kLocationMousePosition, keywords::kModeCurve, {At(16, 840, 360)}},
      {"walk", keywords::kLocationSwipehold, "", {}},
      {"walk, curve", keywords::kLocationSwipehold, keywords::kModeCurve, {At(16, 960, 540)}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    AddSpell(keywords::kTriggerOnRelease, row.location)->mode = row.mode;
    Load();
    PointTo(740, 360);
    Play("down Q");
    Forget();
    PointTo(840, 360);
    Play("wait 16");
    EXPECT_EQ(TakeWire(), row.frame);
    Play("up Q");
  }
}

TEST_F(SpellTriggers, AnotherSpellKeyFinishesAnAim) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse);
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMousePosition, "E");
  Load();
  Play("down Q; up Q; wait 10");
  Forget();
  Play("down E");
  // Q's finger goes back to the button before it lifts; then E presses and swipes.
  EXPECT_WIRE(At(10, 960, 540), Lift(10), At(10, 960, 540), At(10, 980, 540));
  Play("wait 100");  // Q's frames are over, and E has none
  EXPECT_WIRE_NONE();
  Play("down Q");  // and the other way round
  EXPECT_WIRE(At(110, 960, 540), Lift(110), At(110, 960, 540), At(110, 980, 540));
  Play("up E");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellTriggers, AnotherSpellKeyFinishesNothingThatIsHeld) {
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMousePosition);
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMousePosition, "E");
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540));
  Play("down E");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540));
  Play("up E; up Q");  // one finger, lifted by each
  EXPECT_WIRE(Lift(0), Lift(0));
}

TEST_F(SpellTriggers, OnPressKeepsTheItemThatIsInForce) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition);
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationSwipehold, "E");
  Load();
  Play("down Q; down E");  // E's location presses the finger, Q's waits for no walk
  EXPECT_WIRE(At(0, 960, 540));
  EXPECT_TRUE(IsActive());
}

TEST_F(SpellTriggers, TheReleaseOfAnotherKeyCastsNothing) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMousePosition);
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMousePosition, "E");
  Load();
  Play("down Q");
  Forget();
  Play("up E");
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(IsActive());
  Play("up Q");
  EXPECT_WIRE(Lift(0));
}

TEST_F(SpellTriggers, ASecondKeyOfTheSameNameNeitherFinishesNorStarts) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMousePosition);
  SpellConfigItem* other = AddSpell(keywords::kTriggerOnNext, keywords::kLocationMousePosition, "E");
  other->key.text = "Q";  // its name alone decides whether an aim is finished, its code whether the key is the same
  Load();
  Play("down Q; up Q");
  Forget();
  Play("down E");
  EXPECT_WIRE_NONE();
  Play("down Q");
  EXPECT_WIRE(Lift(0));
}

TEST_F(SpellTriggers, AReleaseMakesItsWorkerThePresentOne) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMousePosition, "E");
  Load();
  Play("down Q");
  Forget();
  Play("wait 16");
  EXPECT_WIRE(At(16, 980, 540));
  Play("up E; wait 16");  // a stray release: frames go to a worker that has no cast
  EXPECT_WIRE_NONE();
  EXPECT_FALSE(IsActive());
  Play("up Q");
  EXPECT_WIRE(Lift(32));
}

TEST_F(SpellTriggers, ALeftClickCastsWhatWaitsForIt) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse)->mouse_click_casts = true;
  Load();
  Play("down Q; up Q");
  Forget();
  Play("mouse down left 740,360");
  EXPECT_WIRE_NONE();  // not even the click's own touch
  EXPECT_TRUE(IsActive());
  Play("mouse up left 740,360");
  EXPECT_WIRE(Lift(0));
  EXPECT_FALSE(IsActive());
  SpellEventSimulator::GetInstance()->ForceStop();  // there is nothing left to stop
  EXPECT_WIRE_NONE();
  Play("wait 100; mouse down left 740,360");  // from now on it is a click like any other
  EXPECT_WIRE("100ms 1:SLOTPRESS:1:1:1:1:740:360");
}

TEST_F(SpellTriggers, OtherButtonsAndDoubleClicksCastNothing) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse)->mouse_click_casts = true;
  Load();
  Play("down Q; up Q");
  Forget();
  Play("mouse down right 740,360; mouse up right 740,360; mouse double left 740,360; move 740,360");
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(IsActive());
}

TEST_F(SpellTriggers, AClickCastsOnlyOnNextAndOnlyWhereTheItemSaysSo) {
  const struct {
    QString trigger;
    bool casts;
  } rows[] = {
      {keywords::kTriggerOnNext, false},
      {keywords::kTriggerOnRelease, true},
      {keywords::kTriggerImmediate, true},
      {keywords::kTriggerOnPress, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.trigger.toStdString());
    AddSpell(row.trigger, keywords::kLocationMousePosition)->mouse_click_casts = row.casts;
    Load();
    Play("down Q");
    Forget();
    Play("mouse down left 740,360; mouse up left 740,360");
    EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:740:360", "0ms 1:SLOTRELEASE:1");
    EXPECT_TRUE(IsActive());
    Play("up Q");
  }
}

TEST_F(SpellTriggers, AClickWithoutASpellIsAClick) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse)->mouse_click_casts = true;
  Load();
  Play("mouse down left 740,360; mouse up left 740,360");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:740:360", "0ms 1:SLOTRELEASE:1");
}

TEST_F(SpellTriggers, AnItemOfAnotherClassDoesNothing) {
  Add<ConfigItem>(keywords::kTypeSpell, "Q", {0.5, 0.5});
  Load();
  Play("down Q; up Q");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellTriggers, NothingIsActiveBeforeTheFirstSpell) { EXPECT_FALSE(IsActive()); }

}  // namespace
}  // namespace taviinputmanager
