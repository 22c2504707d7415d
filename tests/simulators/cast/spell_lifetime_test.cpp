#include "keymap/keywords.h"
#include "simulators/cast/spell_event_simulator.h"
#include "tests/simulators/cast/spell_story.h"

// A cast whose keymap is deleted in the middle of it.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;
using tavikeymapmanager::SwipeholdConfigItem;
namespace keywords = tavikeymapmanager::keywords;

bool IsActive() { return SpellEventSimulator::GetInstance()->IsSpellActive(); }

QString Walk(int ms, int x, int y) { return QStringLiteral("%1ms 1:SLOTPRESS:2:2:1:1:%2:%3").arg(ms).arg(x).arg(y); }

class SpellLifetime : public SpellStory {
 protected:
  SpellLifetime() { PointTo(740, 360); }
  SpellConfigItem* AddInner(const QString& key) {
    SpellConfigItem* item = AddSpell(keywords::kTriggerOnRelease, keywords::kLocationInnerSwipehold, key);
    item->inner_swipehold_exclusive = true;
    SwipeholdConfigItem& inner = item->inner_swipehold;
    MakeWalk(&inner);
    inner.rel_x = inner.rel_y = 0.75;
    inner.radius = 0.05;
    return item;
  }
};

TEST_F(SpellLifetime, AKeymapLoadEndsTheCastOfEveryKind) {
  for (const QString& trigger : {keywords::kTriggerImmediate, keywords::kTriggerOnNext, keywords::kTriggerOnPress,
                                 keywords::kTriggerOnRelease}) {
    for (const QString& location : {keywords::kLocationMouse, keywords::kLocationMousePosition,
                                    keywords::kLocationSwipehold, keywords::kLocationInnerSwipehold}) {
      SCOPED_TRACE(trigger.toStdString() + " " + location.toStdString());
      AddWalk();
      AddSpell(trigger, location);
      Load();
      Play("down W; down Q; wait 10");
      AddWalk();
      Load();
      EXPECT_FALSE(IsActive());
      Play("wait 100; up Q; up W");
      EXPECT_WIRE_NONE();
    }
  }
}

TEST_F(SpellLifetime, ACancelRunsOnThroughAKeymapLoad) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
  AddCancel(20);
  Load();
  Play("down Q; down C; wait 10");
  Load();  // time zero is now
  Play("wait 9");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Lift(10));
}

TEST_F(SpellLifetime, ACancelledInnerWalkOutlivesItsKeymap) {
  AddWalk();
  AddInner("Q");
  AddCancel(0);
  Load();
  Play("down Q; down C; down W; wait 10");
  AddWalk();
  Load();
  Play("up W; down D; wait 10");  // its keymap has no cast that would end it, and it continues with its copy
  EXPECT_WIRE(At(0, 960, 540), At(10, 1024, 540));
}

TEST_F(SpellLifetime, ACastInForceBesideThePresentOneSurvivesALoad) {
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMouse);
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "E");
  Load();
  Play("down Q; down E");
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMouse);
  Load();          // stops only E
  Play("down Q");  // Q is active with its copy
  EXPECT_WIRE_NONE();
  Play("up Q");
  EXPECT_WIRE(Lift(0));
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540));
}

TEST_F(SpellLifetime, AJoystickKeymapMayGoInTheMiddleOfAnAim) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "Pad A");
  LoadJoystick();
  Load();
  Play("joy down A");
  EXPECT_WIRE(At(0, 960, 540));
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMousePosition, "Pad A")->stop_walk_after_cast = true;
  LoadJoystick();
  EXPECT_TRUE(IsActive());
  Play("joy axis 1 0.125,0");
  EXPECT_WIRE(At(0, 976, 540));
  Play("joy up A");  // the key is the same; the released item decides what follows
  EXPECT_WIRE(Lift(0), "0ms 1:SLOTRELEASE:8");
}

TEST_F(SpellLifetime, OnNextOfAGoneJoystickKeymapIsToggledByTheSameButton) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse, "Pad A");
  LoadJoystick();
  Load();
  Play("joy down A; joy up A");
  Forget();
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse, "Pad A");
  LoadJoystick();
  Play("joy down A");
  EXPECT_WIRE(Lift(0));
}

TEST_F(SpellLifetime, AnotherKeyFinishesTheAimOfAGoneKeymap) {
  AddSpell(keywords::kTriggerOnNext, keywords::kLocationMouse, "Pad A");
  LoadJoystick();
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition);
  Load();
  Play("joy down A; joy axis 1 0.125,0");
  Forget();
  LoadJoystick();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), Lift(0));
}

TEST_F(SpellLifetime, AnInnerWalkOfAGoneKeymapEndsWithAReset) {
  AddInner("Pad A");
  LoadJoystick();
  AddWalk();
  Load();
  Play("joy down A");
  EXPECT_WIRE(At(0, 960, 540), "0ms 1:SLOTRELEASE:2");
  LoadJoystick();
  Play("down W; wait 10");  // still exclusive
  EXPECT_WIRE(At(0, 960, 540), At(10, 960, 476));
  Play("reset");
  Forget();
  Play("up W; down W; wait 10");
  EXPECT_WIRE(Walk(10, 256, 360), Walk(20, 256, 232));
}

TEST_F(SpellLifetime, AnInnerWalkOfAGoneKeymapGivesTheKeysBackAtTheCast) {
  AddInner("Pad A");
  LoadJoystick();
  AddWalk();
  Load();
  Play("joy down A");
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "Pad A");  // without an inner walk
  LoadJoystick();
  Play("down W; wait 10");
  Forget();
  Play("joy up A; wait 10");
  EXPECT_WIRE(Walk(10, 256, 360), Lift(10), Lift(10), Walk(20, 256, 232));
}

TEST_F(SpellLifetime, ACancelOfAGoneKeymapUsesTheStepsOfItsSpell) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "Pad A")->swipe_steps = 2;
  LoadJoystick();
  AddCancel(0);
  Load();
  Play("joy down A");
  Forget();
  LoadJoystick();
  Play("down C");
  EXPECT_WIRE(At(0, 1056, 306), At(0, 1152, 72), Lift(0));
}

}  // namespace
}  // namespace taviinputmanager
