#include "slots/gravity_fake_slot_manager.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

class GravityFakeSlot : public testing::Test {
 protected:
  GravityFakeSlotManager* keys_ = GravityFakeSlotManager::GetInstance();
};

TEST_F(GravityFakeSlot, SaysNothing) {
  keys_->SetDirectionKey(kDirectionRight, true);
  keys_->Step(1);
  EXPECT_TRUE(keys_->HasTouch());
  EXPECT_TRUE(keys_->BuildPressCommand().isEmpty());
}

TEST_F(GravityFakeSlot, StepsAlongEachAxisThatOneKeyHolds) {
  keys_->SetDirectionKey(kDirectionLeft, true);
  keys_->SetDirectionKey(kDirectionDown, true);
  keys_->Step(0.5);
  EXPECT_EQ(QPointF(-0.5, 0.5), keys_->GetOffset());
  keys_->SetDirectionKey(kDirectionRight, true);  // both keys of the axis
  keys_->SetDirectionKey(kDirectionDown, false);
  keys_->SetDirectionKey(kDirectionUp, true);
  keys_->Step(0.25);
  EXPECT_EQ(QPointF(-0.5, 0.25), keys_->GetOffset());
}

TEST_F(GravityFakeSlot, ClearingTheOffsetKeepsTheKeys) {
  keys_->SetDirectionKey(kDirectionRight, true);
  keys_->Step(1);
  keys_->ClearOffset();
  EXPECT_FALSE(keys_->HasTouch());
  EXPECT_TRUE(keys_->HasDirection());
}

TEST_F(GravityFakeSlot, AResetForgetsBoth) {
  keys_->SetDirectionKey(kDirectionRight, true);
  keys_->Step(1);
  keys_->Reset();
  EXPECT_FALSE(keys_->HasTouch());
  EXPECT_FALSE(keys_->HasDirection());
  EXPECT_EQ(QPointF(), keys_->GetOffset());
}

}  // namespace
}  // namespace taviinputmanager
