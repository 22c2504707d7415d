// The steps of a cast, one by one.
#include "simulators/cast/spell_sync_worker.h"

#include "simulators/cast/spell_on_release_sync_worker.h"
#include "slots/mouse_swipehold_slot_manager.h"
#include "tests/simulators/cast/spell_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

// The worker without its simulator. Only the story is connected to it.
class SpellSteps : public SpellStory {
 protected:
  SpellSteps() {
    item_ = AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
    Load();
    QObject::connect(worker_, &SpellSyncWorker::sigSubscribeSwipehold, &context_, [this] { said_ << "subscribe"; });
    QObject::connect(worker_, &SpellSyncWorker::sigUnSubscribeSwipehold, &context_, [this] { said_ << "unsubscribe"; });
    QObject::connect(worker_, &SpellSyncWorker::sigEntrustToInnerSwipehold, &context_,
                     [this](SpellConfigItem& item) { said_ << "entrust " + item.key.text; });
    QObject::connect(worker_, &SpellSyncWorker::sigCancelEntrustToInnerSwipehold, &context_,
                     [this](SpellConfigItem&, bool not_sync_data) {
                       said_ << (not_sync_data ? "take back with the keys" : "take back");
                     });
  }
  std::string Said() { return std::exchange(said_, {}).join(", ").toStdString(); }

  SpellConfigItem* item_ = nullptr;  // owned by the keymap
  SpellSyncWorker* const worker_ = SpellOnReleaseSyncWorker::GetInstance();

 private:
  QStringList said_;
  QObject context_;
};

TEST_F(SpellSteps, TheButtonIsTheItemsPointUnlessItHasAnother) {
  EXPECT_EQ(QPoint(960, 540), worker_->PressPoint(item_));
  item_->alt_rel_y = 0.5;
  EXPECT_EQ(QPoint(0, 360), worker_->PressPoint(item_));
}

TEST_F(SpellSteps, ThePointerAimsUnlessAWalkDoes) {
  PointTo(740, 360);  // 100 pixels right of the character: 20 on the button
  EXPECT_EQ(QPoint(980, 540), worker_->CalculateTargetPoint(item_));
  item_->mode = keywords::kModeCurve;
  EXPECT_EQ(QPoint(740, 360), worker_->CalculateTargetPoint(item_));
  item_->touch_location = keywords::kLocationInnerSwipehold;
  EXPECT_EQ(QPoint(960, 540), worker_->CalculateTargetPoint(item_));
}

TEST_F(SpellSteps, TheFingerGoesWhereItIsSent) {
  worker_->MoveFinger({100, 200});
  worker_->MoveFinger({101, 200});
  worker_->MoveFinger({});
  EXPECT_WIRE(At(0, 100, 200), At(0, 101, 200), Lift(0));
}

TEST_F(SpellSteps, ASwipeHoldsThenStepsToItsTarget) {
  item_->press_hold_ms = 10;
  item_->swipe_steps = 2;
  item_->swipe_step_ms = 5;
  worker_->SwipeToTarget(item_, {100, 100}, {200, 300});
  EXPECT_WIRE(At(0, 100, 100), At(10, 150, 200), At(15, 200, 300));
}

TEST_F(SpellSteps, ASwipeToTheCancelPointHasNoHoldAndPausesAfterEachStep) {
  item_->press_hold_ms = 10;
  item_->swipe_steps = 2;
  item_->swipe_step_ms = 5;
  worker_->SwipeToCancel(item_, {100, 100}, {200, 300});
  worker_->MoveFinger({});
  EXPECT_WIRE(At(0, 150, 200), At(5, 200, 300), Lift(10));
  item_->swipe_steps = 0;
  worker_->SwipeToCancel(item_, {100, 100}, {200, 300});
  EXPECT_WIRE_NONE();
}

TEST_F(SpellSteps, AStateSubscribesToTheWalkAndEndsThat) {
  item_->touch_location = keywords::kLocationSwipehold;
  worker_->Press(item_, false);
  EXPECT_EQ("subscribe", Said());
  worker_->ChangeSpellState(4);
  EXPECT_EQ("unsubscribe", Said());
  EXPECT_TRUE(worker_->IsActive());
  worker_->ChangeSpellState(1);
  EXPECT_EQ("subscribe", Said());
  worker_->ChangeSpellState(6);
  EXPECT_EQ("unsubscribe", Said());
  EXPECT_FALSE(worker_->IsActive());
}

TEST_F(SpellSteps, AStateEntrustsTheInnerWalkAndTakesItBack) {
  item_->touch_location = keywords::kLocationInnerSwipehold;
  worker_->Press(item_, false);
  worker_->ChangeSpellState(4);
  EXPECT_EQ("entrust Q, take back with the keys", Said());
  worker_->ChangeSpellState(1);
  worker_->ChangeSpellState(6);
  EXPECT_EQ("entrust Q, take back", Said());
}

TEST_F(SpellSteps, NoOtherNumberIsAState) {
  item_->touch_location = keywords::kLocationSwipehold;
  worker_->Press(item_, false);
  Said();
  worker_->ChangeSpellState(5);
  EXPECT_EQ("", Said());
  EXPECT_TRUE(worker_->IsActive());
}

TEST_F(SpellSteps, AfterACastTheWalkStopsWhereTheItemSaysSo) {
  MouseSwipeholdSlotManager::GetInstance()->position = QPoint(300, 300);
  worker_->AfterCast(item_);
  EXPECT_WIRE_NONE();
  item_->stop_walk_after_cast = true;
  worker_->AfterCast(item_);
  EXPECT_WIRE("0ms 1:SLOTRELEASE:4");
}

TEST_F(SpellSteps, WithoutAnItemThereIsNoStep) {
  EXPECT_EQ(QPoint(), worker_->PressPoint(nullptr));
  EXPECT_EQ(QPoint(), worker_->CalculateTargetPoint(nullptr));
  worker_->SwipeToTarget(nullptr, {100, 100}, {200, 300});
  worker_->SwipeToCancel(nullptr, {100, 100}, {200, 300});
  worker_->AfterCast(nullptr);
  for (const int state : {1, 4, 6}) worker_->ChangeSpellState(state);
  EXPECT_WIRE_NONE();
  EXPECT_EQ("", Said());
}

}  // namespace
}  // namespace taviinputmanager
