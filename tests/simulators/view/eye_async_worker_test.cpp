#include "simulators/view/eye_async_worker.h"

#include "keymap/tavikeymapmanager.h"
#include "simulators/view/eye_event_simulator.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/finger_lines.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::EyeConfigItem;

// Home is (640, 360) unless a test says otherwise; speed 100 is 8 pixels a tick of 8 ms.
class Eye : public Story {
 protected:
  EyeConfigItem* AddEye(const QPointF& home = {0.5, 0.5}) {
    auto* item = Add<EyeConfigItem>("Eye", "", home);
    item->key_up = Key("W");
    item->key_left = Key("A");
    item->key_down = Key("S");
    item->key_right = Key("D");
    return item;
  }
  // A home that truncates to these pixels.
  EyeConfigItem* AddEyeAt(int x, int y) { return AddEye({(x + 0.5) / 1280, (y + 0.5) / 720}); }
  static QString At(int ms, int x, int y) { return FingerLines(7).At(ms, x, y); }
  static QString Up(int ms) { return FingerLines(7).Up(ms); }
};

TEST_F(Eye, TurnsWhileAKeyIsHeld) {
  AddEye();
  Load();
  Play("down D");
  EXPECT_WIRE(At(0, 640, 360));
  Wait(7);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(At(8, 648, 360));
  Wait(8);
  EXPECT_WIRE(At(16, 656, 360));
  Play("wait 4; up D");  // the last step has 8 ms before the lift
  EXPECT_WIRE(Up(28));
  Wait(100);
  EXPECT_WIRE_NONE();
}

TEST_F(Eye, EachKeyHasItsDirection) {
  const struct {
    const char* press;
    QPoint position;
  } rows[] = {
      {"down W", {640, 352}},
      {"down S", {640, 368}},
      {"down A", {632, 360}},
      {"down D", {648, 360}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.press);
    AddEye();
    Load();
    Play(row.press);
    Wait(8);
    EXPECT_WIRE(At(0, 640, 360), At(8, row.position.x(), row.position.y()));
  }
}

TEST_F(Eye, ASecondKeyOnlyChangesTheDirection) {
  AddEye();
  Load();
  Play("down D; wait 8; down W; wait 8; up D; wait 8");
  EXPECT_WIRE(At(0, 640, 360), At(8, 648, 360), At(16, 656, 352), At(24, 656, 344));
  Play("up W");
  EXPECT_WIRE(Up(32));
}

TEST_F(Eye, StepHomeAndWindowAreThoseOfTheFirstKey) {
  AddEyeAt(1260, 360);
  auto* other = Add<EyeConfigItem>("Eye", "", {0.25, 0.25});
  other->key_up = Key("E");
  other->speed = 1000;
  Load();
  Play("down D");
  Host().display = QRect(0, 0, 640, 360);
  Play("wait 4; down E; wait 20");
  // Inside the old window up to x = 1275; 1276 lifts, and the next tick steps by (8, -8) from the first key's home.
  EXPECT_WIRE(At(0, 1260, 360), At(8, 1268, 352), Up(16), At(24, 1268, 352));
}

TEST_F(Eye, OppositeKeysStandStillAndTickOn) {
  AddEye();
  Load();
  Play("down D; down A; wait 16; up A; wait 8");
  EXPECT_WIRE(At(0, 640, 360), At(8, 640, 360), At(16, 640, 360), At(24, 648, 360));
}

TEST_F(Eye, AKeyPressedTwiceCountsOnce) {
  AddEye();
  Load();
  Play("down D; wait 4; down D; wait 4");
  EXPECT_WIRE(At(0, 640, 360), At(8, 648, 360));
  Play("up D");
  EXPECT_WIRE(Up(16));
}

TEST_F(Eye, AStrayReleaseDoesNothing) {
  AddEye();
  Load();
  Play("up D; wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(Eye, SpeedIsRoundedToPixels) {
  const struct {
    int speed;
    int step;
  } rows[] = {
      {0, 0},           // presses and does not move
      {6, 0},           // 0.48
      {7, 1},           // 0.56
      {106, 8},         // 8.48
      {107, 9},         // 8.56
      {-100, -8},       // the other way
      {2147483647, 0},  // far out: lifted on the first tick
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.speed);
    AddEye()->speed = row.speed;
    Load();
    Play("down D; wait 8");
    const bool is_out = row.speed == 2147483647;
    EXPECT_WIRE(At(0, 640, 360), is_out ? Up(8) : At(8, 640 + row.step, 360));
  }
}

TEST_F(Eye, LiftsAtTheEdgeAndGoesOnFromHome) {
  AddEyeAt(1260, 360);
  Load();
  Play("down D; wait 32");
  // 1276 is 1280 - 4: one pixel too far. The next tick steps from home.
  EXPECT_WIRE(At(0, 1260, 360), At(8, 1268, 360), Up(16), At(24, 1268, 360), Up(32));
  Play("up D");  // between two presses: the release is sent all the same
  EXPECT_WIRE(Up(40));
}

TEST_F(Eye, TheBoundsAreInside) {
  const struct {
    const char* press;
    QPoint home;
    QPoint inside;
  } rows[] = {
      {"down D", {1267, 360}, {1275, 360}},
      {"down A", {13, 360}, {5, 360}},
      {"down S", {640, 707}, {640, 715}},
      {"down W", {640, 13}, {640, 5}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.press);
    AddEyeAt(row.home.x(), row.home.y());
    Load();
    Play(row.press);
    Wait(16);
    EXPECT_WIRE(At(0, row.home.x(), row.home.y()), At(8, row.inside.x(), row.inside.y()), Up(16));
  }
}

TEST_F(Eye, AHomeInTheCornerIsAFingerThatIsUp) {
  AddEye({0, 0});
  Load();
  Play("down D");
  EXPECT_WIRE(Up(0));
}

TEST_F(Eye, AResetEndsIt) {
  AddEye();
  Load();
  Play("down D; wait 8");
  Forget();
  OnResetInputStatus(true, 2);
  const QStringList lines = TakeWire();
  // On the current display, before the sweep, which goes to the display of the reset.
  EXPECT_EQ(1, lines.count(Up(8)));
  EXPECT_LT(lines.indexOf(Up(8)), lines.indexOf("8ms 2:SLOTRELEASE:0"));
  Wait(100);
  EXPECT_WIRE_NONE();
  Play("down W; wait 8");  // D is cleared
  EXPECT_WIRE(At(108, 640, 360), At(116, 640, 352));
}

TEST_F(Eye, AKeymapMayGoWhileAKeyIsHeld) {
  AddEye();
  Load();
  Play("down D; wait 8");
  AddEye();
  Load();
  Play("wait 100; up D");
  EXPECT_WIRE_NONE();
}

TEST_F(Eye, CountsInPixelsOfTheDisplay) {
  Host().window = {0, 0, 640, 360};
  AddEye();
  Load();
  Play("down D; wait 8");  // (640, 360) and (648, 360) go out as (640 / 640, 360 / 360) and (648 / 640, 360 / 360)
  EXPECT_WIRE(At(0, 1280, 720), At(8, 1296, 720));
}

TEST_F(Eye, GoesToATurnedTouchSurface) {
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 90;
  AddEye({0.5, 0.25});
  Load();
  // (640, 180), (648, 180): x = 720 * (1 - 180 / 720), y = 1280 * 640 / 1280 and 1280 * 648 / 1280.
  Play("down D; wait 8");
  EXPECT_WIRE(At(0, 540, 640), At(8, 540, 648));
}

TEST_F(Eye, InPortraitTheEdgeIsThatOfTheDisplay) {
  Host().window = {0, 0, 720, 1280};
  Host().display = QRect(0, 0, 720, 1280);
  Host().touch = QRect(0, 0, 720, 1280);
  AddEye({707.5 / 720, 0.5});
  Load();
  Play("down D; wait 16");
  EXPECT_WIRE(At(0, 707, 640), At(8, 715, 640), Up(16));
}

TEST_F(Eye, AnItemOfAnotherClassDoesNothing) {
  Add<ConfigItem>("Eye", "W", {0.5, 0.5});
  Load();
  Play("down W; wait 20; up W");
  EXPECT_WIRE_NONE();
}

TEST_F(Eye, TheWorkerNeedsAnItemAndAKey) {
  const EyeConfigItem* item = AddEye();
  Load();
  EyeAsyncWorker* worker = EyeAsyncWorker::GetInstance();
  worker->Press(nullptr, &item->key_right);
  worker->Press(item, nullptr);
  EXPECT_WIRE_NONE();
  worker->Press(item, &item->key_right);
  worker->Release(nullptr, &item->key_right);
  Wait(8);
  EXPECT_WIRE(At(0, 640, 360), At(8, 648, 360));
  worker->Release(item, &item->key_right);
  EXPECT_WIRE(Up(16));
}

}  // namespace
}  // namespace taviinputmanager
