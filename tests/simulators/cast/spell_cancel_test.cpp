#include "keymap/keywords.h"
#include "simulators/cast/spell_event_simulator.h"
#include "tests/simulators/cast/spell_story.h"

// Cancelling a cast, ending it by force, and what follows a cast.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

SpellEventSimulator* Spells() { return SpellEventSimulator::GetInstance(); }

// Cancels swipe to (1152, 72), here from (980, 540).
class SpellCancel : public SpellStory {
 protected:
  SpellCancel() { PointTo(740, 360); }
  SpellConfigItem* AddAimed() { return AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse); }
  void LoadAndAim() {
    Load();
    Play("down Q");
    Forget();
  }
};

TEST_F(SpellCancel, SwipesToTheCancelPointAndLiftsAfterTheDelay) {
  SpellConfigItem* item = AddAimed();
  item->swipe_steps = 4;
  item->swipe_step_ms = 5;
  AddCancel(20);
  LoadAndAim();  // takes 15 ms
  Play("down C");
  // A quarter of the way is (43, -117).
  EXPECT_WIRE(At(15, 1023, 423), At(20, 1066, 306), At(25, 1109, 189), At(30, 1152, 72));
  EXPECT_FALSE(Spells()->IsSpellActive());
  // The delay counts from the end of the last pause: 35 + 20 = 55.
  Play("wait 19");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Lift(55));
  Play("wait 100; up C; up Q");  // once, no frames, and nothing left to cast
  EXPECT_WIRE_NONE();
}

TEST_F(SpellCancel, WithoutDelayTheFingerLiftsAtOnce) {
  AddAimed();
  AddCancel(0);
  LoadAndAim();
  Play("down C");
  EXPECT_WIRE(At(0, 1152, 72), Lift(0));
  Play("wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellCancel, ANegativeDelayLeavesTheFingerDown) {
  AddAimed();
  AddCancel(-1);
  LoadAndAim();
  Play("down C");
  EXPECT_WIRE(At(0, 1152, 72));
  Play("wait 1000; up C");
  EXPECT_WIRE_NONE();
  Spells()->ForceStop();  // there is no cast left to stop
  Play("up Q");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellCancel, OfADelayOfOneMillisecondNothingIsLost) {
  AddAimed();
  AddCancel(1);
  LoadAndAim();
  Play("down C");
  EXPECT_WIRE(At(0, 1152, 72));
  Play("wait 1");
  EXPECT_WIRE(Lift(1));
}

TEST_F(SpellCancel, WithoutStepsTheFingerStaysAndLifts) {
  for (const int steps : {0, -2}) {
    SCOPED_TRACE(steps);
    AddAimed()->swipe_steps = steps;
    AddCancel(0);
    LoadAndAim();
    Play("down C");
    EXPECT_WIRE(Lift(0));
  }
}

TEST_F(SpellCancel, StepsAreRounded) {
  SpellConfigItem* item = AddAimed();
  item->swipe_steps = 3;
  AddCancel(0)->rel_x = 0.7734375;  // 990: (10, -468) away
  LoadAndAim();
  Play("down C");
  EXPECT_WIRE(At(0, 983, 384), At(0, 987, 228), At(0, 990, 72), Lift(0));
}

TEST_F(SpellCancel, TheCancelPointIsCutOffToPixels) {
  AddAimed();
  SpellCancelConfigItem* cancel = AddCancel(0);
  cancel->rel_x = 0.7507;  // 960.896
  cancel->rel_y = 0.1007;  // 72.504
  LoadAndAim();
  Play("down C");
  EXPECT_WIRE(At(0, 960, 72), Lift(0));
}

TEST_F(SpellCancel, ASecondCancelDoesNotMoveTheLift) {
  for (const int second_delay : {50, 0, -1}) {
    SCOPED_TRACE(second_delay);
    AddAimed();
    AddCancel(50);
    SpellCancelConfigItem* second = AddCancel(second_delay);
    second->key = Key("V");
    LoadAndAim();
    Play("down C; wait 20; down Q; wait 10");
    Forget();
    Play("down V");
    EXPECT_WIRE(At(30, 1152, 72));
    Play("wait 19");
    EXPECT_WIRE_NONE();
    Play("wait 1");
    EXPECT_WIRE(Lift(50));
    Play("wait 100");
    EXPECT_WIRE_NONE();
  }
}

TEST_F(SpellCancel, ALiftThatIsDueLiftsANewCastToo) {
  AddAimed();
  AddCancel(20);
  LoadAndAim();
  Play("down C; wait 10; down Q; wait 9");
  Forget();
  Play("wait 1");
  EXPECT_WIRE(Lift(20));
  EXPECT_TRUE(Spells()->IsSpellActive());
  Play("wait 6");  // the next frame puts it down again
  EXPECT_WIRE(At(26, 980, 540));
}

TEST_F(SpellCancel, WithTheFingerUpOnlyTheCastEnds) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition);
  AddCancel(20);
  LoadAndAim();
  EXPECT_TRUE(Spells()->IsSpellActive());
  Play("down C; wait 100");
  EXPECT_WIRE_NONE();
  EXPECT_FALSE(Spells()->IsSpellActive());
}

TEST_F(SpellCancel, WithoutACastNothingHappens) {
  AddAimed();
  AddCancel(0);
  Load();
  Play("down C; up C");
  EXPECT_WIRE_NONE();
  Play("down Q; up Q");
  Forget();
  Play("down C");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellCancel, EveryTriggerThatHoldsCanBeCancelled) {
  for (const QString& trigger : {keywords::kTriggerImmediate, keywords::kTriggerOnNext, keywords::kTriggerOnRelease}) {
    SCOPED_TRACE(trigger.toStdString());
    AddSpell(trigger, keywords::kLocationMouse);
    AddCancel(0);
    LoadAndAim();
    Play("down C");
    EXPECT_WIRE(At(0, 1152, 72), Lift(0));
    Play("wait 20; up Q");
    EXPECT_WIRE_NONE();
    Play("down Q; up Q");  // and a new one can begin
    EXPECT_FALSE(TakeWire().isEmpty());
  }
}

class Listener : public QObject {
 public:
  Listener() {
    connect(Spells(), &SpellEventSimulator::sigSpellCancelPressed, this,
            [this](SpellCancelConfigItem& item) { items.append(&item); });
  }
  QVector<SpellCancelConfigItem*> items;
};

TEST_F(SpellCancel, EachCancelKeyIsTold) {
  AddAimed();
  SpellCancelConfigItem* cancel = AddCancel(0);
  Load();
  Listener listener;
  Play("down C");  // also without a cast
  EXPECT_EQ(listener.items, QVector<SpellCancelConfigItem*>{cancel});
  Play("up C; down Q; up Q");
  EXPECT_EQ(listener.items.size(), 1);
}

TEST_F(SpellCancel, OneThatIsNotImmediateIsToldAndCancelsNothing) {
  AddAimed();
  LoadAndAim();
  Listener listener;
  SpellCancelConfigItem cancel;
  auto key = Key("C");
  Spells()->Press(&cancel, &key);
  EXPECT_EQ(listener.items, QVector<SpellCancelConfigItem*>{&cancel});
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(Spells()->IsSpellActive());
}

TEST_F(SpellCancel, WhatIsNoCancelIsNotTold) {
  Load();
  Listener listener;
  ConfigItem item;
  auto key = Key("C");
  Spells()->Press(&item, &key);
  Spells()->Press(nullptr, &key);
  Spells()->Release(nullptr, &key);
  EXPECT_TRUE(listener.items.isEmpty());
  EXPECT_WIRE_NONE();
}

// ---- A forced stop ----

class SpellForceStop : public SpellCancel {};

TEST_F(SpellForceStop, LiftsAndForgets) {
  AddAimed();
  LoadAndAim();
  Spells()->ForceStop();
  EXPECT_WIRE(Lift(0));
  EXPECT_FALSE(Spells()->IsSpellActive());
  Play("wait 100; up Q");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellForceStop, LiftsOnceMoreAfterACast) {
  AddAimed();
  LoadAndAim();
  Play("up Q");
  Forget();
  Spells()->ForceStop();  // it is still the current worker
  EXPECT_WIRE(Lift(0));
  Spells()->ForceStop();
  EXPECT_WIRE_NONE();
}

TEST_F(SpellForceStop, IsPartOfAReset) {
  AddAimed();
  LoadAndAim();
  Play("reset");
  const QStringList lines = TakeWire();
  EXPECT_EQ(lines.count(Lift(0)), 2);  // the spell's own, and that of the sweep
  EXPECT_FALSE(Spells()->IsSpellActive());
}

TEST_F(SpellForceStop, LeavesACancelToItsTime) {
  AddAimed();
  AddCancel(20);
  LoadAndAim();
  Play("down C; wait 10; reset");
  Forget();
  Play("wait 9");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Lift(20));
}

// ---- After the cast ----

class SpellAfterCast : public SpellCancel {
 protected:
  const QString stop_right_walk_ = QStringLiteral("0ms 1:SLOTRELEASE:4");
};

TEST_F(SpellAfterCast, StopsTheRightWalkAfterTheLift) {
  const struct {
    QString trigger;
    QString casts;
  } rows[] = {
      {keywords::kTriggerImmediate, "up Q"},
      {keywords::kTriggerOnRelease, "up Q"},
      {keywords::kTriggerOnNext, "up Q; down Q"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.trigger.toStdString());
    AddSpell(row.trigger, keywords::kLocationMouse)->stop_walk_after_cast = true;
    LoadAndAim();
    Play(row.casts);
    EXPECT_WIRE(Lift(0), stop_right_walk_);
  }
}

TEST_F(SpellAfterCast, StopsItInThePressOfOnPress) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMouse)->stop_walk_after_cast = true;
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540), Lift(0), stop_right_walk_);
}

TEST_F(SpellAfterCast, StopsTheLeftStickForAGamepad) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "Pad A")->stop_walk_after_cast = true;
  LoadJoystick();
  Load();
  Play("joy down A; joy up A");
  EXPECT_WIRE(At(0, 960, 540), Lift(0), "0ms 1:SLOTRELEASE:8");
}

TEST_F(SpellAfterCast, AStoppedLeftStickWaitsForItsRest) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "Pad A")->stop_walk_after_cast = true;
  auto* stick = Add<tavikeymapmanager::JoystickLeftWalkConfigItem>("LeftStickWalk", "Pad Left_Stick", {0.25, 0.5});
  stick->walk_radius = 0.1;
  LoadJoystick();
  Load();
  Play("joy axis 0 0.125,0; joy down A");  // 24 ms
  Forget();
  Play("joy up A");
  EXPECT_WIRE(Lift(24), "24ms 1:SLOTRELEASE:8");
  Play("joy axis 0 1,0; joy axis 0 0,1");
  EXPECT_WIRE_NONE();
  Play("joy axis 0 0,0; joy axis 0 0.125,0");
  EXPECT_WIRE("24ms 1:SLOTRELEASE:8", "24ms 1:SLOTPRESS:8:8:1:1:320:360", "40ms 1:SLOTPRESS:8:8:1:1:336:360");
}

TEST_F(SpellAfterCast, NothingStopsWithoutACast) {
  const struct {
    const char* name;
    QString trigger;
    QString location;
    QString script;
  } rows[] = {
      {"a click", keywords::kTriggerOnNext, keywords::kLocationMouse,
       "down Q; up Q; mouse down left 1,1; mouse up left 1,1"},
      {"a cancel", keywords::kTriggerOnRelease, keywords::kLocationMouse, "down Q; down C; up Q"},
      {"another key", keywords::kTriggerOnNext, keywords::kLocationMouse, "down Q; up Q; down E"},
      {"on press, inner", keywords::kTriggerOnPress, keywords::kLocationInnerSwipehold, "down Q; up Q"},
      {"on press, walk", keywords::kTriggerOnPress, keywords::kLocationSwipehold, "down Q; up Q"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    SpellConfigItem* item = AddSpell(row.trigger, row.location);
    item->stop_walk_after_cast = true;
    item->mouse_click_casts = true;
    AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition, "E");
    AddCancel(0);
    Load();
    Play(row.script);
    const QStringList lines = TakeWire();
    EXPECT_TRUE(lines.contains(Lift(0)));
    EXPECT_FALSE(lines.contains(stop_right_walk_));
  }
}

TEST_F(SpellAfterCast, ANextCastStopsOnlyWhereItsItemSaysSo) {
  AddAimed();
  LoadAndAim();
  Play("up Q");
  EXPECT_WIRE(Lift(0));
}

}  // namespace
}  // namespace taviinputmanager
