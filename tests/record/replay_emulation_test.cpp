// Replays that move contacts a little, like a human hand.
#include <cstdlib>
#include <set>

#include "record/replay_event_handler.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using Place = std::pair<double, double>;
using Places = std::set<Place>;

constexpr unsigned kSeed = 7;
// For at most ten outcomes; the probability that one of them, or a direction, never occurs is below 1e-17.
constexpr int kManyPresses = 400;

class Emulation : public Story {
 protected:
  Emulation() {
    std::srand(kSeed);
    Load(1);
  }

  // The positions of presses of a point.
  Places PlacesOf(const QString& point) {
    Places places;
    for (int i = 0; i < kManyPresses; ++i) {
      handler_->OnTouchAction("press_rel:" + point, "0", {}, true);
      for (const QString& line : TakeWire()) {
        const QStringList parts = line.split(':');
        places.insert({parts[6].toDouble(), parts[7].toDouble()});
      }
    }
    return places;
  }
  // Both coordinates up by 0 to 2, or both down.
  static Places Around(double x, double y) {
    Places places;
    for (int dx = 0; dx < 3; ++dx) {
      for (int dy = 0; dy < 3; ++dy) {
        places.insert({x + dx, y + dy});
        places.insert({x - dx, y - dy});
      }
    }
    return places;
  }

  ReplayEventHandler* handler_ = ReplayEventHandler::GetInstance();
};

TEST_F(Emulation, MovesBothCoordinatesTheSameWay) { EXPECT_EQ(Around(640, 360), PlacesOf("(0.5,0.5)")); }

TEST_F(Emulation, KeepsWhatIsBehindThePoint) {
  EXPECT_EQ(Around(0.75 * 1280, 4.5), PlacesOf("(0.75,0.00625)"));  // 0.00625 * 720 = 4.5
}

// 1280 / 1280 is 1: from there 0, 1 or 2 down ends at 0, not below.
TEST_F(Emulation, HasAFloor) {
  const Places places = PlacesOf("(0.00078125,0.5)");
  Places expected;
  for (int dy = 0; dy < 3; ++dy) {
    for (int dx = 0; dx < 3; ++dx) expected.insert({1 + dx, 360 + dy});
    expected.insert({1, 360 - dy});
    expected.insert({0, 360 - dy});
  }
  EXPECT_EQ(expected, places);
}

TEST_F(Emulation, HasNoCeiling) { EXPECT_EQ(Around(1280, 720), PlacesOf("(1,1)")); }

TEST_F(Emulation, LiftsANegativePlaceToTheFloor) {
  for (const Place& place : PlacesOf("(-0.5,0.5)")) EXPECT_EQ(0, place.first);
}

// In the corner every move down ends in the corner again, which is not a point; so does the move up by 0 and 0.
TEST_F(Emulation, MayMakeAPointOfTheCorner) {
  Places expected;
  for (int dx = 0; dx < 3; ++dx) {
    for (int dy = 0; dy < 3; ++dy) {
      if (dx != 0 || dy != 0) expected.insert({dx, dy});
    }
  }
  EXPECT_EQ(expected, PlacesOf("(0,0)"));
  EXPECT_EQ(expected, PlacesOf("no point"));
}

TEST_F(Emulation, HoldsWhatItPressed) {
  for (int i = 0; i < 20; ++i) {
    handler_->OnTouchAction("press_rel:(0.5,0.5)", "0", {}, true);
    const QStringList pressed = TakeWire();
    handler_->ResumeHeldInput();
    EXPECT_EQ(pressed, TakeWire());
  }
}

TEST_F(Emulation, IsOffUnlessAskedFor) {
  for (int i = 0; i < 50; ++i) {
    handler_->OnTouchAction("press_rel:(0.5,0.5)", "0", {}, false);
    EXPECT_WIRE("0ms 0:SLOTPRESS:18:18:1:1:640:360");
  }
}

TEST_F(Emulation, LeavesSeveralContactsAndReleasesAlone) {
  for (int i = 0; i < 50; ++i) {
    handler_->OnTouchAction("press_multi_rel:(0.25,0.5):(0.75,0.5)", "0:1", {}, true);
    handler_->OnTouchAction("release_multi", "0:1", {}, true);
    handler_->OnTouchAction("release", "0", {}, true);
    handler_->OnTouchAction("reset", {}, {}, true);
    EXPECT_WIRE("0ms 0:SLOTMULTIPRESS:18:18:320:360:19:19:960:360", "0ms 0:SLOTMULTIRELEASE:0:1",
                "0ms 0:SLOTRELEASE:18", "0ms 0:SLOTRELEASEALL");
  }
}

TEST_F(Emulation, StillDropsWhatHasNotTwoParts) {
  for (int i = 0; i < 50; ++i) handler_->OnTouchAction("press_rel", "0", {}, true);
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
