#include "keymap/keywords.h"
#include "simulators/cast/spell_event_simulator.h"
#include "tests/simulators/cast/spell_story.h"

// Aiming with the walk: the ordinary one, or the spell's own, which shares its contact.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;
using tavikeymapmanager::SwipeholdConfigItem;
namespace keywords = tavikeymapmanager::keywords;

QString Walk(int ms, int x, int y) { return QStringLiteral("%1ms 1:SLOTPRESS:2:2:1:1:%2:%3").arg(ms).arg(x).arg(y); }
QString EndWalk(int ms) { return QStringLiteral("%1ms 1:SLOTRELEASE:2").arg(ms); }

bool IsActive() { return SpellEventSimulator::GetInstance()->IsSpellActive(); }

// The walk's stick is at (256, 360) with a radius of 128, aslant qRound(128 * 0.7071) = 91 on each axis; the spell's
// finger goes round(720 * 0.1) = 72 from (960, 540).
class SpellWalk : public SpellStory {
 protected:
  SpellConfigItem* AddAimed(const QString& trigger = keywords::kTriggerOnRelease) {
    return AddSpell(trigger, keywords::kLocationSwipehold);
  }
};

TEST_F(SpellWalk, TheFingerFollowsTheDirectionOfTheWalk) {
  AddWalk();
  AddAimed();
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540));  // the button, without a direction so far
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232), At(10, 960, 468));
  Play("down D");  // 91 / 128 * 72 = 51.2
  EXPECT_WIRE(Walk(10, 347, 269), At(10, 1011, 489));
  Play("up W");
  EXPECT_WIRE(Walk(10, 384, 360), At(10, 1032, 540));
  Play("up D");
  EXPECT_WIRE(EndWalk(10), At(10, 960, 540));
  Play("up Q");
  EXPECT_WIRE(Lift(10));
  Play("down W; wait 10");  // no longer
  EXPECT_WIRE(Walk(10, 256, 360), Walk(20, 256, 232));
}

TEST_F(SpellWalk, AWalkAlreadyUnderWayCounts) {
  AddWalk();
  AddAimed();
  Load();
  Play("down W; wait 10");
  Forget();
  Play("down Q");
  EXPECT_WIRE(At(10, 960, 540), At(10, 960, 468));
}

TEST_F(SpellWalk, TheWalkAimsInEachTriggerThatHolds) {
  for (const QString& trigger : {keywords::kTriggerImmediate, keywords::kTriggerOnNext, keywords::kTriggerOnRelease}) {
    SCOPED_TRACE(trigger.toStdString());
    AddWalk();
    AddAimed(trigger);
    Load();
    Play("down Q; down S; wait 10");
    EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540), Walk(0, 256, 360), Walk(10, 256, 488), At(10, 960, 612));
    Play("up S");
    Forget();
  }
}

TEST_F(SpellWalk, TheRadiusIsOfTheHeightInPortrait) {
  AddWalk();
  AddAimed();
  Load();
  Host().display = QRect(0, 0, 720, 1280);  // the button (540, 960), round(1280 * 0.1) = 128
  Play("down W; wait 10; down Q");
  // The walk: (144, 640), 72 to the top; its centre goes out as a fraction of the touch surface: (256, 360).
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 144, 568), At(10, 540, 960), At(10, 540, 832));
}

TEST_F(SpellWalk, TheSecondPressOfOnNextEndsTheAim) {
  AddWalk();
  AddAimed(keywords::kTriggerOnNext);
  Load();
  Play("down Q; up Q; down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540), Lift(0));
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
}

TEST_F(SpellWalk, AForcedStopEndsTheAim) {
  AddWalk();
  AddAimed();
  Load();
  Play("down Q");
  Forget();
  SpellEventSimulator::GetInstance()->ForceStop();
  EXPECT_WIRE(Lift(0));
  EXPECT_FALSE(IsActive());
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
}

TEST_F(SpellWalk, OnPressCastsTowardsTheWalk) {
  AddWalk();
  AddAimed(keywords::kTriggerOnPress);
  Load();
  Play("down A; wait 10");
  Forget();
  Play("down Q");
  EXPECT_WIRE(At(10, 960, 540), At(10, 888, 540), Lift(10));
  EXPECT_FALSE(IsActive());
  Play("up Q; up A");
  EXPECT_WIRE(EndWalk(10));
}

TEST_F(SpellWalk, OnPressAtRestCastsOnTheButton) {
  AddWalk();
  AddAimed(keywords::kTriggerOnPress);
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540), Lift(0));
  EXPECT_FALSE(IsActive());
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
}

TEST_F(SpellWalk, OnPressHasDoneWithTheWalkWhenItHasCast) {
  AddWalk();
  AddAimed(keywords::kTriggerOnPress);
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition, "E");
  Load();
  Play("down Q; down E");
  Forget();
  Play("down W; wait 10");  // does not fire E
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
  EXPECT_TRUE(IsActive());
}

// A cancel ends no connection: the walk is still reported, to the current worker.
class SpellWalkAfterCancel : public SpellWalk {
 protected:
  // Q is aimed with the walk and cancelled.
  void LoadAndCancel() {
    AddWalk();
    AddAimed();
    AddCancel(0);
    Load();
    Play("down Q; down C");
    Forget();
  }
  void WalkUp() {
    Forget();
    Play("down W; wait 10");
  }
};

TEST_F(SpellWalkAfterCancel, NobodyAims) {
  LoadAndCancel();
  WalkUp();
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
}

TEST_F(SpellWalkAfterCancel, ANewAimIsToldOnce) {
  LoadAndCancel();
  Play("down Q");
  WalkUp();
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232), At(10, 960, 468));
}

TEST_F(SpellWalkAfterCancel, AnAimAtAnotherLocationDoesNotListen) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMousePosition, "E");
  LoadAndCancel();
  Play("down E");
  WalkUp();
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
}

TEST_F(SpellWalkAfterCancel, OnPressThatDoesNotAimIsNotFired) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition, "E");
  LoadAndCancel();
  Play("down E");
  WalkUp();
  EXPECT_WIRE(Walk(0, 256, 360), Walk(10, 256, 232));
  EXPECT_TRUE(IsActive());
}

// ---- The inner walk ----

// The inner stick is on the button with a radius of 0.05 * 1280 = 64, aslant 45. It jumps 10 ms after its press.
class SpellInnerWalk : public SpellStory {
 protected:
  SpellConfigItem* AddAimed(bool exclusive, const QString& trigger = keywords::kTriggerOnRelease,
                            const QString& key = QStringLiteral("Q")) {
    SpellConfigItem* item = AddSpell(trigger, keywords::kLocationInnerSwipehold, key);
    item->inner_swipehold_exclusive = exclusive;
    SetInner(&item->inner_swipehold);
    return item;
  }
  static void SetInner(SwipeholdConfigItem* inner) {
    MakeWalk(inner);
    inner->rel_x = inner->rel_y = 0.75;
    inner->radius = 0.05;
  }
};

TEST_F(SpellInnerWalk, DrivesTheSpellsFingerBesideTheWalk) {
  AddWalk();
  AddAimed(false);
  Load();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540));
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(0, 256, 360), At(0, 960, 540), Walk(10, 256, 232), At(10, 960, 476));
  Play("down D");
  EXPECT_WIRE(Walk(10, 347, 269), At(10, 1005, 495));
  Play("up Q");  // the inner walk ends and releases, and so does the spell; the walk has the keys already
  EXPECT_WIRE(Lift(10), Lift(10));
  Play("up W");
  EXPECT_WIRE(Walk(10, 384, 360));
}

TEST_F(SpellInnerWalk, TakesOverAWalkUnderWay) {
  AddWalk();
  AddAimed(false);
  Load();
  Play("down W; wait 10");
  Forget();
  Play("down Q; wait 10");  // the spell's press, and a new walk of its own
  EXPECT_WIRE(At(10, 960, 540), At(10, 960, 540), At(20, 960, 476));
  Play("up W");  // the inner walk leaves the contact down: it belongs to the spell
  EXPECT_WIRE(EndWalk(20));
  Play("up Q");
  EXPECT_WIRE(Lift(20), Lift(20));
}

TEST_F(SpellInnerWalk, AnExclusiveOneStopsTheWalkAndGivesItBack) {
  AddWalk();
  AddAimed(true);
  Load();
  Play("down W; wait 10");
  Forget();
  Play("down Q; wait 10");
  EXPECT_WIRE(At(10, 960, 540), At(10, 960, 540), EndWalk(10), At(20, 960, 476));
  Play("down D");
  EXPECT_WIRE(At(20, 1005, 495));
  Play("up Q");  // the walk starts again with both keys before the finger is lifted
  EXPECT_WIRE(Walk(20, 256, 360), Lift(20), Lift(20));
  Play("wait 10; up D");
  EXPECT_WIRE(Walk(30, 347, 269), Walk(30, 256, 232));
}

TEST_F(SpellInnerWalk, ATransparentOneIsNone) {
  AddWalk();
  SpellConfigItem* item = AddAimed(true);
  item->inner_swipehold.press_mode = keywords::kPressTransparent;
  Load();
  Play("down W; wait 10");
  Forget();
  Play("down Q");
  EXPECT_WIRE(At(10, 960, 540));
  Play("down D; wait 10");
  EXPECT_WIRE(Walk(10, 347, 269));
  Play("up Q");
  EXPECT_WIRE(Lift(20));
  Play("up D");
  EXPECT_WIRE(Walk(20, 256, 232));
}

TEST_F(SpellInnerWalk, ATransparentOneDoesNotEndThatOfAnotherSpell) {
  AddWalk();
  AddAimed(true, keywords::kTriggerImmediate);
  AddAimed(true, keywords::kTriggerOnRelease, "E")->inner_swipehold.press_mode = keywords::kPressTransparent;
  Load();
  Play("down Q; down E; up E");
  Forget();
  Play("down W; wait 10");  // still only Q's
  EXPECT_WIRE(At(0, 960, 540), At(10, 960, 476));
}

TEST_F(SpellInnerWalk, FinishingTheAimGivesNothingBack) {
  AddWalk();
  AddAimed(true, keywords::kTriggerOnNext);
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition, "E");  // has no effect of its own
  Load();
  Play("down W; wait 10; down Q; up Q; wait 10");
  Forget();
  Play("down E");
  EXPECT_WIRE(At(20, 960, 540), Lift(20));
  Play("wait 20");
  EXPECT_WIRE_NONE();             // W is still down, and there is no walk
  Play("up W; down D; wait 10");  // only the walk gets the next key
  EXPECT_WIRE(Walk(40, 256, 360), Walk(50, 384, 360));
}

TEST_F(SpellInnerWalk, TheSecondPressOfOnNextGivesNothingBack) {
  AddWalk();
  AddAimed(true, keywords::kTriggerOnNext);
  Load();
  Play("down W; wait 10; down Q; up Q; wait 10");
  Forget();
  Play("down Q; wait 20");
  EXPECT_WIRE(Lift(20));
}

TEST_F(SpellInnerWalk, AForcedStopGivesNothingBack) {
  AddWalk();
  AddAimed(true);
  Load();
  Play("down W; wait 10; down Q; wait 10");
  Forget();
  SpellEventSimulator::GetInstance()->ForceStop();
  EXPECT_WIRE(Lift(20));
  Play("wait 20; up W; down D; wait 10");
  EXPECT_WIRE(Walk(40, 256, 360), Walk(50, 384, 360));
}

TEST_F(SpellInnerWalk, ImmediateCastsWithIt) {
  AddWalk();
  AddAimed(false, keywords::kTriggerImmediate);
  Load();
  Play("down Q; down W; wait 10; up Q");
  EXPECT_WIRE(At(0, 960, 540), Walk(0, 256, 360), At(0, 960, 540), Walk(10, 256, 232), At(10, 960, 476), Lift(10),
              Lift(10));
}

TEST_F(SpellInnerWalk, OnPressDoesNotUseIt) {
  AddWalk();
  AddAimed(true, keywords::kTriggerOnPress);
  Load();
  Play("down W; wait 10");
  Forget();
  Play("down Q; up Q; up W");
  EXPECT_WIRE(At(10, 960, 540), Lift(10), EndWalk(10));
}

TEST_F(SpellInnerWalk, ACancelledOneWalksOnUntilALaterStop) {
  AddWalk();
  AddAimed(true);
  AddCancel(0);
  Load();
  Play("down Q; down C");
  Forget();
  Play("down W; wait 10");  // still alone
  EXPECT_WIRE(At(0, 960, 540), At(10, 960, 476));
  Play("up W; down Q");
  Forget();
  SpellEventSimulator::GetInstance()->ForceStop();
  EXPECT_WIRE(Lift(10));
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(10, 256, 360), Walk(20, 256, 232));
}

TEST_F(SpellInnerWalk, EachAimBringsItsOwn) {
  AddWalk();
  AddAimed(false);
  AddAimed(false, keywords::kTriggerOnRelease, "E")->inner_swipehold.radius = 0.1;  // 128
  Load();
  Play("down Q; down W; wait 10; up W; up Q; down E");
  Forget();
  Play("down W; wait 10");
  EXPECT_WIRE(Walk(10, 256, 360), At(10, 960, 540), Walk(20, 256, 232), At(20, 960, 412));
}

// Counts its instances.
struct CountedWalk : SwipeholdConfigItem {
  CountedWalk(const SwipeholdConfigItem& walk, int* live) : SwipeholdConfigItem(walk), live(live) { ++*live; }
  CountedWalk(const CountedWalk&) = delete;
  CountedWalk& operator=(const CountedWalk&) = delete;
  ~CountedWalk() override { --*live; }
  int* live;
};

// A keymap library's own kind of spell, which creates its inner walk on request.
struct LibrarySpell : SpellConfigItem {
  SwipeholdConfigItem* InnerSwipeholdItem() const override {
    ++*asked;
    return new CountedWalk(walk, live);
  }
  SwipeholdConfigItem walk;
  int* asked = nullptr;
  int* live = nullptr;
};

TEST_F(SpellInnerWalk, TheKeymapsOwnItemIsAskedForIt) {
  int asked = 0;
  static int live = 0;  // one exists until the end of the program
  AddWalk();
  auto* item = Add<LibrarySpell>(keywords::kTypeSpell, "Q", {0.75, 0.75});
  item->touch_location = keywords::kLocationInnerSwipehold;
  item->asked = &asked;
  item->live = &live;
  SpellStory::MakeWalk(&item->walk);
  item->walk.rel_x = item->walk.rel_y = 0.25;
  item->walk.radius = 0.05;
  Load();
  Play("down Q; down W; wait 10");
  EXPECT_WIRE(At(0, 960, 540), Walk(0, 256, 360), At(0, 320, 180), Walk(10, 256, 232), At(10, 320, 116));
  EXPECT_EQ(asked, 1);
  Play("up Q");
  EXPECT_WIRE(Lift(10), Lift(10));
  EXPECT_EQ(asked, 1);  // the end uses what the aim recorded
  EXPECT_EQ(live, 1);   // the walk keeps it until it gets another
  Play("down Q; wait 10; up Q");
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(live, 1);
}

}  // namespace
}  // namespace taviinputmanager
