#include "slots/eye_slot_manager.h"

#include <limits>

#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class EyeSlot : public Story {
 protected:
  EyeSlotManager* eye_ = EyeSlotManager::GetInstance();
  std::string Update() { return eye_->BuildUpdateCommand().toStdString(); }
};

TEST_F(EyeSlot, IsTheSeventh) {
  EXPECT_EQ(7, eye_->GetSlotId());
  EXPECT_EQ("SLOTRELEASE:7\n", Update());
  eye_->position = QPoint(30, 40);
  EXPECT_EQ("SLOTPRESS:7:7:1:1:30:40\n", Update());
}

TEST_F(EyeSlot, StepsAlongEachAxisThatOneKeyHolds) {
  eye_->position = QPoint(100, 100);
  eye_->SetDirectionKey(kDirectionRight, true);
  eye_->SetDirectionKey(kDirectionUp, true);
  eye_->Step(7);
  EXPECT_EQ(QPoint(107, 93), eye_->position);
  eye_->SetDirectionKey(kDirectionLeft, true);  // both keys of the axis
  eye_->Step(7);
  EXPECT_EQ(QPoint(107, 86), eye_->position);
  eye_->SetDirectionKey(kDirectionRight, false);
  eye_->SetDirectionKey(kDirectionUp, false);
  eye_->SetDirectionKey(kDirectionDown, true);
  eye_->Step(7);
  EXPECT_EQ(QPoint(100, 93), eye_->position);
}

TEST_F(EyeSlot, KnowsWhetherAnyKeyIsHeld) {
  for (const int direction : {kDirectionUp, kDirectionDown, kDirectionLeft, kDirectionRight}) {
    EXPECT_FALSE(eye_->HasDirection());
    eye_->SetDirectionKey(direction, true);
    eye_->SetDirectionKey(direction, true);
    EXPECT_TRUE(eye_->HasDirection());
    eye_->SetDirectionKey(direction, false);
  }
  EXPECT_FALSE(eye_->HasDirection());
  eye_->SetDirectionKey(5, true);  // not a direction
  EXPECT_FALSE(eye_->HasDirection());
}

TEST_F(EyeSlot, StopsAtTheEndsOfAnInt) {
  eye_->position = QPoint(std::numeric_limits<int>::max() - 1, std::numeric_limits<int>::min() + 1);
  eye_->SetDirectionKey(kDirectionRight, true);
  eye_->SetDirectionKey(kDirectionUp, true);
  eye_->Step(100);
  EXPECT_EQ(QPoint(std::numeric_limits<int>::max(), std::numeric_limits<int>::min()), eye_->position);
}

// The negation of the lowest int does not exist.
TEST_F(EyeSlot, AStepOfAnyLengthIsTakenEitherWay) {
  constexpr int kLowest = std::numeric_limits<int>::min();
  eye_->SetDirectionKey(kDirectionLeft, true);
  eye_->SetDirectionKey(kDirectionDown, true);
  eye_->Step(kLowest);
  EXPECT_EQ(QPoint(std::numeric_limits<int>::max(), kLowest), eye_->position);
}

TEST_F(EyeSlot, AResetForgetsKeysHomeAndPosition) {
  eye_->home = eye_->position = QPoint(30, 40);
  eye_->SetDirectionKey(kDirectionLeft, true);
  eye_->Reset();
  EXPECT_FALSE(eye_->HasDirection());
  EXPECT_EQ(QPoint(), eye_->home);
  EXPECT_EQ("SLOTRELEASE:7\n", Update());
}

}  // namespace
}  // namespace taviinputmanager
