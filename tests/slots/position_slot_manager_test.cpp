#include "slots/position_slot_manager.h"

#include "slots/fire_slot_manager.h"
#include "slots/joystick_left_stick_slot_manager.h"
#include "slots/joystick_right_stick_slot_manager.h"
#include "slots/mouse_slot_manager.h"
#include "slots/mouse_swipehold_slot_manager.h"
#include "slots/mouse_wheel_slot_manager.h"
#include "slots/spell_slot_manager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class Slots : public Story {
 protected:
  static std::string Update(SlotManager* manager) { return manager->BuildUpdateCommand().toStdString(); }
};

TEST_F(Slots, EachFeatureHasItsOwn) {
  const struct {
    PositionSlotManager* manager;
    int slot;
  } rows[] = {
      {MouseSlotManager::GetInstance(), 1},
      {FireSlotManager::GetInstance(), 3},
      {MouseSwipeholdSlotManager::GetInstance(), 4},
      {SpellSlotManager::GetInstance(), 6},
      {JoystickLeftStickSlotManager::GetInstance(), 8},
      {JoystickRightStickSlotManager::GetInstance(), 9},
      {MouseWheelSlotManager::GetInstance(), 10},
  };
  for (const auto& row : rows) {
    const std::string slot = std::to_string(row.slot);
    EXPECT_EQ(row.slot, row.manager->GetSlotId());
    EXPECT_FALSE(row.manager->HasTouch());
    EXPECT_EQ("SLOTRELEASE:" + slot + "\n", Update(row.manager));
    row.manager->position = QPoint(0, 5);  // one coordinate is enough to be down
    EXPECT_TRUE(row.manager->HasTouch());
    EXPECT_EQ("SLOTPRESS:" + slot + ":" + slot + ":1:1:0:5\n", Update(row.manager));
    row.manager->Reset();
    EXPECT_FALSE(row.manager->HasTouch());
    EXPECT_EQ("SLOTRELEASE:" + slot + "\n", row.manager->BuildReleaseCommand().toStdString());
  }
}

TEST_F(Slots, TheTopLeftCornerIsUp) {
  MouseSlotManager::GetInstance()->position = QPoint(0, 0);
  EXPECT_EQ("SLOTRELEASE:1\n", Update(MouseSlotManager::GetInstance()));
}

TEST_F(Slots, AManagerWithoutSlotSaysNothing) {
  MouseSlotManager manager(SlotManager::kNoSlot);
  manager.position = QPoint(5, 5);
  EXPECT_EQ("", Update(&manager));
  EXPECT_EQ("", manager.BuildPressCommandAt(5, 5).toStdString());
  EXPECT_EQ("", manager.BuildRelativePressCommandAt(0.5, 0.5).toStdString());
  EXPECT_EQ("", manager.BuildReleaseCommand().toStdString());
}

TEST_F(Slots, PixelsAreOfTheWindowAndFractionsOfTheDisplay) {
  Host().window = {0, 0, 640, 360};
  Host().display = QRect(0, 0, 1920, 1080);
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 90;
  MouseSlotManager* mouse = MouseSlotManager::GetInstance();
  // (160 / 640, 90 / 360) = (0.25, 0.25): x = (1 - 0.25) * 720 = 540, y = 0.25 * 1280 = 320
  EXPECT_EQ("SLOTPRESS:1:1:1:1:540:320\n", mouse->BuildPressCommandAt(160, 90).toStdString());
  EXPECT_EQ("SLOTPRESS:1:1:1:1:540:320\n", mouse->BuildRelativePressCommandAt(0.25, 0.25).toStdString());
}

TEST_F(Slots, APositionThatCannotBeMappedSaysNothingAndStays) {
  Host().window = {0, 0, 0, 0};
  MouseSlotManager* mouse = MouseSlotManager::GetInstance();
  mouse->position = QPoint(5, 6);
  EXPECT_EQ("", Update(mouse));
  EXPECT_EQ(QPoint(5, 6), mouse->position);
}

TEST_F(Slots, TheRightWalkRemembersItsLastTouch) {
  MouseSwipeholdSlotManager* walk = MouseSwipeholdSlotManager::GetInstance();
  const int touched = walk->TouchLastMove();
  EXPECT_EQ(0, walk->ElapsedSinceLastMove());
  Wait(299);
  EXPECT_EQ(299, walk->ElapsedSinceLastMove());
  walk->Reset();  // clears the contact, not the time
  EXPECT_EQ(299, walk->ElapsedSinceLastMove());
  EXPECT_EQ(touched + 299, walk->TouchLastMove());
}

TEST_F(Slots, TheTimeOfTheLastTouchJumpsAtMidnight) {
  constexpr int kDayMs = 24 * 60 * 60 * 1000;
  MouseSwipeholdSlotManager* walk = MouseSwipeholdSlotManager::GetInstance();
  const int touched = walk->TouchLastMove();
  Wait(kDayMs - touched);
  EXPECT_EQ(-touched, walk->ElapsedSinceLastMove());
}

}  // namespace
}  // namespace taviinputmanager
