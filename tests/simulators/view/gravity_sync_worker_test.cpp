#include "simulators/view/gravity_sync_worker.h"

#include "keymap/tavikeymapmanager.h"
#include "simulators/view/gravity_event_simulator.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::GravityConfigItem;

// At speed 100 the offset grows by 1 a tick of 8 ms, and the tilt by the offset: 1, 3, 6, 10, ...
class Gravity : public Story {
 protected:
  GravityConfigItem* AddGravity(int speed = 100) {
    auto* item = Add<GravityConfigItem>("Gravity");
    item->key_up = Key("W");
    item->key_left = Key("A");
    item->key_down = Key("S");
    item->key_right = Key("D");
    item->speed = speed;
    return item;
  }
  // The calls of SetGravity since the last call: "8ms 0 0 1; 16ms 0 0 3".
  std::string Tilts() {
    return TakeCalls().filter("gravity").replaceInStrings("gravity ", "").join("; ").toStdString();
  }
};

TEST_F(Gravity, TiltsFasterAndFaster) {
  AddGravity();
  Load();
  Play("down D; wait 7");
  EXPECT_EQ("", Tilts());
  Wait(1);
  EXPECT_EQ("8ms 0 0 1", Tilts());
  Wait(16);
  EXPECT_EQ("16ms 0 0 3; 24ms 0 0 6", Tilts());
  Play("up D");
  EXPECT_EQ("24ms 0 0 0", Tilts());
  Wait(100);
  EXPECT_EQ("", Tilts());
  EXPECT_WIRE_NONE();  // it sends nothing to the guest's screen
}

TEST_F(Gravity, EachKeyHasItsDirection) {
  const struct {
    const char* press;
    const char* tilt;
  } rows[] = {
      {"down W", "8ms 1 0 0"},
      {"down S", "8ms -1 0 0"},
      {"down A", "8ms 0 0 -1"},
      {"down D", "8ms 0 0 1"},
  };
  for (const auto& row : rows) {
    AddGravity();
    Load();
    Play(row.press);
    Wait(8);
    EXPECT_EQ(row.tilt, Tilts());
  }
}

TEST_F(Gravity, StopsAt40AndFallsSilent) {
  AddGravity();
  Load();
  Play("down D; down W; wait 64");
  // After eight ticks 1 + 2 + ... + 8 = 36; the ninth would give 45.
  EXPECT_TRUE(QString::fromStdString(Tilts()).endsWith("64ms 36 0 36"));
  Wait(8);
  EXPECT_EQ("72ms 40 0 40", Tilts());
  Wait(80);
  EXPECT_EQ("", Tilts());
}

TEST_F(Gravity, StopsAtMinus40Too) {
  AddGravity();
  Load();
  Play("down A; down S; wait 72");
  EXPECT_TRUE(QString::fromStdString(Tilts()).endsWith("72ms -40 0 -40"));
  Wait(80);
  EXPECT_EQ("", Tilts());
}

TEST_F(Gravity, TellsEachChangeTruncated) {
  AddGravity(30);
  Load();
  Play("down D; wait 32");  // 0.3, 0.9, 1.8, 3
  EXPECT_EQ("8ms 0 0 0; 16ms 0 0 0; 24ms 0 0 1; 32ms 0 0 3", Tilts());
}

TEST_F(Gravity, TruncatesTowardsZero) {
  AddGravity(30);
  Load();
  Play("down A; wait 24");
  EXPECT_EQ("8ms 0 0 0; 16ms 0 0 0; 24ms 0 0 -1", Tilts());
}

TEST_F(Gravity, WithoutSpeedItTellsTheRestOnce) {
  AddGravity(0);
  Load();
  Play("down D; wait 80");
  EXPECT_EQ("8ms 0 0 0", Tilts());
}

TEST_F(Gravity, EachKeyUpStartsFromRest) {
  AddGravity();
  Load();
  Play("down D; wait 16; down W; wait 8");
  EXPECT_EQ("8ms 0 0 1; 16ms 0 0 3; 24ms 1 0 6", Tilts());
  Play("wait 4; up D");  // at once, and the ticks keep their time
  EXPECT_EQ("28ms 0 0 0", Tilts());
  Wait(12);
  EXPECT_EQ("32ms 1 0 0; 40ms 3 0 0", Tilts());
}

TEST_F(Gravity, AfterARestTheSameTiltIsToldAgain) {
  AddGravity();
  Load();
  Play("down D; wait 8; up D; down D; wait 8");
  EXPECT_EQ("8ms 0 0 1; 8ms 0 0 0; 16ms 0 0 1", Tilts());
  Play("reset full; down D; wait 8");
  EXPECT_EQ("16ms 0 0 0; 24ms 0 0 1", Tilts());
}

TEST_F(Gravity, OppositeKeysKeepTheSpeedOfTheTilt) {
  AddGravity();
  Load();
  Play("down D; wait 8; down A; wait 16");  // the offset stays at 1
  EXPECT_EQ("8ms 0 0 1; 16ms 0 0 2; 24ms 0 0 3", Tilts());
}

TEST_F(Gravity, AFurtherKeyDoesNotStartAnew) {
  AddGravity();
  AddGravity(1000);
  Load();
  Play("down D; wait 4; down D; down W; wait 4");
  EXPECT_EQ("8ms 1 0 1", Tilts());
}

TEST_F(Gravity, TheSpeedIsThatOfTheFirstKeysItem) {
  AddGravity();
  auto* other = AddGravity(1000);
  other->key_up = other->key_right = other->key_left = other->key_down = Key("E");  // counts as up
  Load();
  Play("down D; down E; wait 8");
  EXPECT_EQ("8ms 1 0 1", Tilts());
}

TEST_F(Gravity, AStrayReleaseLaysItFlat) {
  AddGravity();
  Load();
  Play("up D; wait 100");
  EXPECT_EQ("0ms 0 0 0", Tilts());
}

TEST_F(Gravity, AResetEndsIt) {
  AddGravity();
  Load();
  Play("down D; wait 8");
  Tilts();
  Play("reset full");
  EXPECT_EQ("8ms 0 0 0", Tilts());
  Wait(100);
  EXPECT_EQ("", Tilts());
  Play("down W; wait 8");  // D is cleared, and so is its offset
  EXPECT_EQ("116ms 1 0 0", Tilts());
}

TEST_F(Gravity, AKeymapMayGoWhileAKeyIsHeld) {
  AddGravity();
  Load();
  Play("down D; wait 8");
  Load();
  Play("wait 100; up D");
  EXPECT_EQ("", Tilts());
}

TEST_F(Gravity, AHostThatTakesNoGravityIsNotAsked) {
  Host().table.SetGravity = nullptr;
  AddGravity();
  Load();
  Play("down D; wait 8; up D");
  EXPECT_EQ("", Tilts());
}

TEST_F(Gravity, AnItemOfAnotherClassDoesNothing) {
  Add<ConfigItem>("Gravity", "W");
  Load();
  Play("down W; wait 20; up W");
  EXPECT_EQ("", Tilts());
}

TEST_F(Gravity, TheWorkerNeedsAnItemAndAKey) {
  const GravityConfigItem* item = AddGravity();
  Load();
  GravitySyncWorker* worker = GravitySyncWorker::GetInstance();
  worker->Press(nullptr, &item->key_right);
  worker->Press(item, nullptr);
  Wait(8);
  EXPECT_EQ("", Tilts());
  worker->Press(item, &item->key_right);
  worker->Release(nullptr, &item->key_right);
  Wait(8);
  worker->Release(item, &item->key_right);
  EXPECT_EQ("16ms 0 0 1; 16ms 0 0 0", Tilts());
}

}  // namespace
}  // namespace taviinputmanager
