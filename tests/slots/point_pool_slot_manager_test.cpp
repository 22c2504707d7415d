#include "slots/point_pool_slot_manager.h"

#include "slots/macro_slot_manager.h"
#include "slots/mult_point_slot_manager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class PointPool : public Story {
 protected:
  MacroSlotManager* pool_ = MacroSlotManager::GetInstance();
};

TEST_F(PointPool, GivesEachPointASlot) {
  EXPECT_EQ(18, pool_->Allocate({0.1, 0.1}));
  EXPECT_EQ(19, pool_->Allocate({0.2, 0.2}));
  EXPECT_EQ(18, pool_->Allocate({0.1, 0.1}));
  EXPECT_EQ((QSet<int>{18, 19}), pool_->ActiveSlots());
}

TEST_F(PointPool, ComparesPointsAsQtDoes) {
  EXPECT_EQ(18, pool_->Allocate({0.3, 0.1}));
  EXPECT_EQ(18, pool_->Allocate({0.1 + 0.2, 0.1}));  // equal to twelve digits
  EXPECT_TRUE(pool_->Contains({0.1 + 0.2, 0.1}));
  EXPECT_EQ(18, pool_->FreeAt({0.1 + 0.2, 0.1}));
  EXPECT_FALSE(pool_->Contains({0.3, 0.1}));
}

TEST_F(PointPool, IsOfEight) {
  for (int i = 1; i <= 8; ++i) EXPECT_EQ(17 + i, pool_->Allocate({i / 10.0, 0.5}));
  EXPECT_EQ(-1, pool_->Allocate({0.9, 0.5}));
  EXPECT_EQ(-1, pool_->FindFree());
  EXPECT_EQ(20, pool_->Allocate({0.3, 0.5}));  // a known point still has its slot
  pool_->Free(21);
  EXPECT_EQ(21, pool_->Allocate({0.9, 0.5}));
}

TEST_F(PointPool, FindingAFreeSlotTakesNothing) {
  EXPECT_EQ(18, pool_->FindFree());
  EXPECT_EQ(18, pool_->FindFree());
  pool_->Reserve(18);
  EXPECT_EQ(19, pool_->FindFree());
}

TEST_F(PointPool, AReservedSlotHoldsThePlaceholder) {
  pool_->Reserve(20);
  EXPECT_EQ(20, pool_->Allocate({1.0, 1.0}));
}

TEST_F(PointPool, AContactInTheCornerDoesNotHoldItsSlot) {
  EXPECT_EQ(18, pool_->Allocate({0, 0}));
  EXPECT_EQ(18, pool_->Allocate({0.5, 0.5}));
  EXPECT_TRUE(pool_->ActiveSlots().contains(18));
}

TEST_F(PointPool, NoSlotAndSlotsOfOthersAreIgnored) {
  for (const int id : {-1, 17, 26}) {
    pool_->Reserve(id);
    pool_->SetPoint(id, {0.5, 0.5});
    pool_->Free(id);
  }
  EXPECT_TRUE(pool_->ActiveSlots().isEmpty());
  EXPECT_EQ(-1, pool_->FreeAt({0.5, 0.5}));
}

TEST_F(PointPool, APointCanBeMoved) {
  pool_->Allocate({0.1, 0.1});
  pool_->SetPoint(18, {0.2, 0.2});
  EXPECT_FALSE(pool_->Contains({0.1, 0.1}));
  EXPECT_EQ(18, pool_->Allocate({0.2, 0.2}));
}

TEST_F(PointPool, AResetFreesAll) {
  pool_->Allocate({0.1, 0.1});
  pool_->Reserve(25);
  pool_->Reset();
  EXPECT_TRUE(pool_->ActiveSlots().isEmpty());
}

TEST_F(PointPool, HasNoTouchOfItsOwn) {
  pool_->Allocate({0.1, 0.1});
  EXPECT_FALSE(pool_->HasTouch());
  EXPECT_EQ("", pool_->BuildPressCommand().toStdString());
  EXPECT_EQ("SLOTRELEASE:18\n", pool_->BuildUpdateCommand().toStdString());
}

TEST_F(PointPool, TouchInputKeepsABookOfItsOwn) {
  pool_->Allocate({0.1, 0.1});
  EXPECT_EQ(18, MultPointSlotManager::GetInstance()->Allocate({0.2, 0.2}));
}

}  // namespace
}  // namespace taviinputmanager
