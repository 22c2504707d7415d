// The virtual sticks without the gamepad: their signals, and the results of queries.
#include "simulators/gamepad/vstick_left_stick_simulator.h"
#include "simulators/gamepad/vstick_right_stick_simulator.h"
#include "simulators/walk/swipehold_async_worker.h"
#include "tests/simulators/gamepad/pad_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SwipeholdConfigItem;

// A stick of 128 pixels: 0.1 * 1280.
class VStick : public PadStory {
 protected:
  SwipeholdConfigItem* AddStick(const QString& type) {
    auto* item = Add<SwipeholdConfigItem>(type, {}, {0.2, 0.5});
    item->key_up = Key("W");
    item->key_left = Key("A");
    item->key_down = Key("S");
    item->key_right = Key("D");
    item->press_mode = "Click";
    return item;
  }
  template <typename Stick>
  void Listen(const QString& name) {
    QObject::connect(Stick::GetInstance(), &Stick::sigSwipeholdTargetPointChanged, [this, name](QPointF& point) {
      Say(QStringLiteral("%1 %2,%3").arg(name).arg(point.x(), 0, 'g', 10).arg(point.y(), 0, 'g', 10));
    });
  }
  template <typename Stick>
  static QPointF PointOf() {
    QPointF answer(-9, -9);
    Stick::GetInstance()->QueryVirtualPoint([&answer](QPointF point) { answer = point; });
    return answer;
  }
};

TEST_F(VStick, EachSpeaksByItsOwnSignal) {
  Listen<VStickLeftStickSimulator>("left");
  Listen<VStickRightStickSimulator>("right");
  Listen<SwipeholdEventSimulator>("walk");
  AddStick("VirtualLeftStick");
  LoadPad();
  Play("down D; wait 32; up D");
  EXPECT_EQ("32ms left 1,0, 32ms left 0,0", Said());
  AddStick("VirtualRightStick");
  LoadPad();
  Play("down S; wait 32; up S");
  EXPECT_EQ("32ms right 0,1, 32ms right 0,0", Said());
  AddStick("Swipehold");
  LoadPad();
  Play("down A; wait 32; up A");
  EXPECT_EQ("32ms walk -1,0, 32ms walk 0,0", Said());
}

TEST_F(VStick, SpeaksOnceHoweverOftenItIsPressed) {
  Listen<VStickLeftStickSimulator>("left");
  AddStick("VirtualLeftStick");
  LoadPad();
  for (int i = 0; i < 3; ++i) Play("down D; wait 32; up D; wait 8");
  EXPECT_EQ("32ms left 1,0, 32ms left 0,0, 72ms left 1,0, 72ms left 0,0, 112ms left 1,0, 112ms left 0,0", Said());
}

// A worker that walks before the first press is ignored, and a release does not change that.
TEST_F(VStick, IsSilentUntilTheFirstPress) {
  Listen<VStickLeftStickSimulator>("left");
  auto* item = AddStick("VirtualLeftStick");
  LoadPad();
  ConfigKey key = Key("D");
  SwipeholdAsyncWorker::GetInstance(2)->Press(item, &key);
  Wait(32);
  VStickLeftStickSimulator::GetInstance()->Release(item, &key);
  EXPECT_EQ("", Said());
  Play("down D; wait 32; up D");
  EXPECT_EQ("64ms left 1,0, 64ms left 0,0", Said());
}

TEST_F(VStick, EachAnswersWithItsOwnPoint) {
  AddStick("VirtualLeftStick");
  auto* right = AddStick("VirtualRightStick");
  right->key_up = Key("Up");
  right->key_left = Key("Left");
  right->key_down = Key("Down");
  right->key_right = Key("Right");
  LoadPad();
  EXPECT_EQ(QPointF(0, 0), PointOf<VStickLeftStickSimulator>());
  EXPECT_EQ(QPointF(0, 0), PointOf<VStickRightStickSimulator>());
  Play("down W; down Right");  // the target of the keys; the sticks have not moved yet
  EXPECT_EQ(QPointF(0, -1), PointOf<VStickLeftStickSimulator>());
  EXPECT_EQ(QPointF(1, 0), PointOf<VStickRightStickSimulator>());
  EXPECT_EQ(QPointF(0, -1), PointOf<SwipeholdEventSimulator>());  // the walk reports the left one
  Play("up W; up Right");
  EXPECT_EQ(QPointF(0, 0), PointOf<VStickLeftStickSimulator>());
  EXPECT_EQ(QPointF(0, 0), PointOf<VStickRightStickSimulator>());
}

TEST_F(VStick, OfItemsThatShareItTheOneUsedLastIsInForceAlsoByARelease) {
  Listen<VStickLeftStickSimulator>("left");
  AddStick("VirtualLeftStick")->press_mode = "Move";
  auto* other = AddStick("VirtualLeftStick");  // jumps
  other->key_up = Key("I");
  LoadPad();
  Play("down W; wait 200; up I; wait 10");
  Said();
  SwipeholdAsyncWorker::GetInstance(2)->ReplayDirections({1, 0});  // right, again
  Wait(32);
  EXPECT_EQ("242ms left 1,0", Said());
}

TEST_F(VStick, AReleaseWithoutAPressIsIgnored) {
  Listen<VStickLeftStickSimulator>("left");
  AddStick("VirtualLeftStick");
  LoadPad();
  Play("up D; wait 100; up W");
  EXPECT_EQ("", Said());
}

TEST_F(VStick, ItemsOfOtherClassesAndNoItemDoNothing) {
  Listen<VStickLeftStickSimulator>("left");
  ConfigItem other;
  ConfigKey key = Key("D");
  LoadPad();
  for (ConfigItem* item : {static_cast<ConfigItem*>(nullptr), &other}) {
    VStickLeftStickSimulator::GetInstance()->Press(item, &key);
    Wait(100);
    VStickLeftStickSimulator::GetInstance()->Release(item, &key);
  }
  EXPECT_EQ("", Said());
  EXPECT_EQ(QPointF(0, 0), PointOf<VStickLeftStickSimulator>());
}

TEST_F(VStick, OutlivesItsKeymap) {
  Listen<VStickLeftStickSimulator>("left");
  AddStick("VirtualLeftStick")->press_mode = "Move";
  LoadPad();
  Play("down D; wait 32");
  EXPECT_EQ("32ms left 0.1640625,0", Said());
  AddStick("VirtualLeftStick");
  LoadPad();  // the old item is deleted; the slide continues with its copy, and time zero is now
  Play("wait 100; up D");
  EXPECT_EQ(
      "16ms left 0.328125,0, 32ms left 0.4921875,0, 48ms left 0.65625,0, 64ms left 0.8203125,0, 80ms left 1,0, "
      "100ms left 0,0",
      Said());
}

TEST_F(VStick, APressGapBlocksAsThatOfAWalkDoes) {
  Listen<VStickLeftStickSimulator>("left");
  AddStick("VirtualLeftStick")->press_gap_ms = 100;
  LoadPad();
  PointOf<VStickLeftStickSimulator>();  // the gap also counts from the stick's creation
  Play("wait 200; down D; wait 32; up D; wait 40; down D; wait 32");
  // Released at 232 ms; pressed again at 272 ms, which waits for 332 ms.
  EXPECT_EQ("232ms left 1,0, 232ms left 0,0, 364ms left 1,0", Said());
}

TEST_F(VStick, SendsNothing) {
  AddStick("VirtualLeftStick")->press_mode = "Move";
  LoadPad();
  Play("down D; wait 200; down W; wait 200; up D; up W; wait 100");
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
