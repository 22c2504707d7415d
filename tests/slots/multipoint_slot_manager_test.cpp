#include "slots/multipoint_slot_manager.h"

#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class TapPool : public Story {
 protected:
  MultipointSlotManager* pool_ = MultipointSlotManager::GetInstance();

  std::string Press(double x, double y) { return pool_->PressAt(x, y) ? Update() : "refused"; }
  std::string Release(double x, double y) { return pool_->ReleaseAt(x, y) ? Update() : "refused"; }
  std::string Update() { return pool_->BuildUpdateCommand().toStdString(); }
  void FillAll() {
    for (int i = 1; i <= 7; ++i) EXPECT_TRUE(pool_->PressAt(i, 0.5));
  }
};

TEST_F(TapPool, SaysNothingBeforeItsFirstTouch) {
  EXPECT_EQ(-1, pool_->GetSlotId());
  EXPECT_FALSE(pool_->HasTouch());
  EXPECT_EQ("", Update());
}

TEST_F(TapPool, TakesTheFirstFreeSlot) {
  EXPECT_EQ("SLOTPRESS:11:11:1:1:640:360\n", Press(0.5, 0.5));
  EXPECT_EQ("SLOTPRESS:12:12:1:1:320:360\n", Press(0.25, 0.5));
  EXPECT_EQ("SLOTRELEASE:11\n", Release(0.5, 0.5));
  EXPECT_EQ("SLOTPRESS:11:11:1:1:960:360\n", Press(0.75, 0.5));
}

TEST_F(TapPool, OnePointHasOneSlot) {
  EXPECT_EQ("SLOTPRESS:11:11:1:1:640:360\n", Press(0.5, 0.5));
  EXPECT_EQ("SLOTPRESS:11:11:1:1:640:360\n", Press(0.5, 0.5));
  EXPECT_EQ("SLOTRELEASE:11\n", Release(0.5, 0.5));
  EXPECT_EQ("SLOTRELEASE:11\n", Release(0.5, 0.5));  // free, but still recorded
}

TEST_F(TapPool, APointMustBeTheSameToTheLastBit) {
  Press(0.3, 0.5);
  EXPECT_EQ("refused", Release(0.1 + 0.2, 0.5));
}

TEST_F(TapPool, AnOldPointKeepsItsSlotWhileNobodyTakesIt) {
  Press(0.25, 0.5);
  Press(0.5, 0.5);
  pool_->Reset();
  EXPECT_EQ("SLOTPRESS:12:12:1:1:640:360\n", Press(0.5, 0.5));  // 11 is free too
  EXPECT_EQ("SLOTPRESS:11:11:1:1:960:360\n", Press(0.75, 0.5));
  EXPECT_EQ("refused", Release(0.25, 0.5));  // overwritten
}

TEST_F(TapPool, AResetKeepsTheSlotTouchedLast) {
  Press(0.5, 0.5);
  pool_->Reset();
  EXPECT_EQ(11, pool_->GetSlotId());
  EXPECT_EQ("SLOTRELEASE:11\n", Update());
}

TEST_F(TapPool, AFullPoolTakesKnownPointsOnly) {
  FillAll();
  EXPECT_EQ(17, pool_->GetSlotId());
  EXPECT_EQ("refused", Press(0.5, 0.5));
  EXPECT_EQ(17, pool_->GetSlotId());  // nothing changed
  EXPECT_EQ("SLOTPRESS:13:13:1:1:3840:360\n", Press(3, 0.5));
}

TEST_F(TapPool, EntriesThatWereNeverUsedHoldTheCorner) {
  EXPECT_EQ("SLOTPRESS:11:11:1:1:0:0\n", Press(0, 0));
  EXPECT_EQ("SLOTRELEASE:11\n", Release(0, 0));
}

TEST_F(TapPool, AGivenSlotIsWrittenWhoeverHeldIt) {
  EXPECT_TRUE(pool_->SetSlot(14, 0.5, 0.5));
  EXPECT_EQ("SLOTPRESS:14:14:1:1:640:360\n", Update());
  EXPECT_TRUE(pool_->SetSlot(14, 0.25, 0.5));
  EXPECT_EQ("SLOTPRESS:14:14:1:1:320:360\n", Update());
  EXPECT_TRUE(pool_->ReleaseSlot(14));
  EXPECT_EQ("SLOTRELEASE:14\n", Update());
}

TEST_F(TapPool, ASlotOfAnothersIsRefused) {
  for (const int id : {-1, 0, 10, 18, 25}) {
    EXPECT_FALSE(pool_->SetSlot(id, 0.5, 0.5)) << id;
    EXPECT_FALSE(pool_->ReleaseSlot(id)) << id;
  }
  EXPECT_EQ(-1, pool_->GetSlotId());
  EXPECT_TRUE(pool_->SetSlot(11, 0.5, 0.5));
  EXPECT_TRUE(pool_->SetSlot(17, 0.5, 0.5));
}

}  // namespace
}  // namespace taviinputmanager
