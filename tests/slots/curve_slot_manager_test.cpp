#include "slots/curve_slot_manager.h"

#include "core/display_geometry.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class CurveSlot : public Story {
 protected:
  CurveSlotManager* curve_ = CurveSlotManager::GetInstance();
  std::string Update() { return curve_->BuildUpdateCommand().toStdString(); }
};

TEST_F(CurveSlot, IsWhereItsOffsetPutsIt) {
  EXPECT_EQ("SLOTRELEASE:5\n", Update());
  curve_->SetOrigin({0.25, 0.5});
  EXPECT_FALSE(curve_->HasTouch());
  curve_->SetOffset(0.25, 0.25);
  EXPECT_EQ("SLOTPRESS:5:5:1:1:640:540\n", Update());  // 1280 * 0.5, 720 * 0.75
  curve_->SetOffset(0, 0);                             // at the origin, which is not null
  EXPECT_EQ("SLOTPRESS:5:5:1:1:320:360\n", Update());
}

TEST_F(CurveSlot, AResetForgetsTheOriginToo) {
  curve_->SetOrigin({0.25, 0.5});
  curve_->Reset();
  curve_->SetOffset(0.5, 0.5);
  EXPECT_EQ("SLOTPRESS:5:5:1:1:640:360\n", Update());
  curve_->Reset();
  EXPECT_EQ("SLOTRELEASE:5\n", Update());
}

TEST_F(CurveSlot, WithoutDisplayItSaysNothing) {
  curve_->SetOffset(0.5, 0.5);
  DisplayGeometry::GetInstance()->SetCallbacks(nullptr);
  EXPECT_EQ("", Update());
}

}  // namespace
}  // namespace taviinputmanager
