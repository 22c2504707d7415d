#include "host/window/view/contact_trails.h"

#include <gtest/gtest.h>

#include "host/guest/guest_model.h"

namespace tavi {
namespace {

constexpr int kFade = ContactTrails::kFadeMs;

QMap<int, GuestContact> At(int x) { return {{2, {2, QPoint(x, 0)}}}; }

TEST(ContactTrails, AFingerLeavesTheWayItWent) {
  ContactTrails trails;
  trails.Update(At(10), 0);
  trails.Update(At(20), 5);
  trails.Update(At(20), 9);  // it rests
  const QVector<TrailPoint>& points = trails.Down()[2].points;
  ASSERT_EQ(points.size(), 2);
  EXPECT_EQ(points[0].point, QPoint(10, 0));
  EXPECT_EQ(points[1].point, QPoint(20, 0));
  EXPECT_EQ(points[1].ms, 5);
}

TEST(ContactTrails, ALiftedFingerFadesAway) {
  ContactTrails trails;
  trails.Update(At(10), 0);
  trails.Update({}, 100);
  EXPECT_TRUE(trails.Down().isEmpty());
  ASSERT_EQ(trails.Lifted().size(), 1);
  EXPECT_EQ(trails.Lifted()[0].slot, 2);
  EXPECT_EQ(trails.Lifted()[0].lifted_ms, 100);
  EXPECT_TRUE(trails.Prune(100 + kFade));
  EXPECT_FALSE(trails.Prune(101 + kFade));
  EXPECT_TRUE(trails.Lifted().isEmpty());
}

TEST(ContactTrails, ANewTouchOfTheSlotIsANewTrail) {
  ContactTrails trails;
  trails.Update(At(10), 0);
  trails.Update({}, 100);
  trails.Update(At(90), 110);
  EXPECT_EQ(trails.Lifted().size(), 1);
  EXPECT_EQ(trails.Down()[2].points.size(), 1);
}

TEST(ContactTrails, WhereAFingerRestsIsKeptForGood) {
  ContactTrails trails;
  trails.Update(At(10), 0);
  trails.Update(At(20), 5);
  EXPECT_TRUE(trails.Prune(kFade));       // the point of 0 ms is just recent enough
  EXPECT_FALSE(trails.Prune(kFade * 9));  // nothing left to fade
  ASSERT_EQ(trails.Down()[2].points.size(), 1);
  EXPECT_EQ(trails.Down()[2].points[0].point, QPoint(20, 0));
}

}  // namespace
}  // namespace tavi
