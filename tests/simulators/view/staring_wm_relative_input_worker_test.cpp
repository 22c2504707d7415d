#include "simulators/view/staring_wm_relative_input_worker.h"

#include <cmath>
#include <limits>

#include "slots/mouse_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/view_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::StaringConfigItem;

// The line of the view contact at a point, at time zero.
QString ViewAt(int x, int y) { return QStringLiteral("0ms 1:SLOTPRESS:1:1:1:1:%1:%2").arg(x).arg(y); }

const QString kViewUp = QStringLiteral("0ms 1:SLOTRELEASE:1");

class Staring : public ViewStory {
 protected:
  QPointF Sensitivity() const { return StaringWmRelativeInputWorker::GetInstance()->GetEffectiveSensitivity(); }
};

TEST_F(Staring, TheFirstCountsPressExactlyOnTheCentreAndAreLost) {
  AddStaring();
  Stare();
  Play("rel 10,5; rel 3,-4");
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(643, 356));
}

TEST_F(Staring, TheFingerStandsByAllCountsSinceItsPress) {
  AddStaring();
  Stare();
  Play("rel 0,0; rel 10,0; rel 10,7; rel -25,0");
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(650, 360), ViewAt(660, 367), ViewAt(635, 367));
}

TEST_F(Staring, CountsBetweenTwoSendsAreSummedUp) {
  StaringConfigItem* item = AddStaring();
  item->press_interval_ms = 100;
  item->move_interval_ms = 8;
  Stare();
  Play("wait 99; rel 5,5");  // the library started at 0 ms, and so did the press interval
  EXPECT_WIRE_NONE();
  Play("wait 1; rel 5,5");
  EXPECT_WIRE("100ms 1:SLOTPRESS:1:1:1:1:640:360");  // none of the ten
  Play("wait 7; rel 1,2");
  EXPECT_WIRE_NONE();
  Play("wait 1; rel 1,2");
  EXPECT_WIRE("108ms 1:SLOTPRESS:1:1:1:1:642:364");
}

TEST_F(Staring, SensitivityIsPerCentByAxis) {
  StaringConfigItem* item = AddStaring();
  item->sensitivity_x = 150;
  item->sensitivity_y = 50;
  Stare();
  // 3 counts: 4.5 rounds to 5, 1.5 to 2. -3 counts in all: -4.5 rounds to -4, -1.5 to -1.
  Play("rel 0,0; rel 3,3; rel -6,-6");
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(645, 362), ViewAt(636, 359));
}

TEST_F(Staring, TheHandyFactorRunsFromOnePerCentThroughTheItemsValueToTwoHundred) {
  const struct {
    const char* name;
    int base;
    double factor;
    double expected;
  } rows[] = {
      {"the item's own value", 100, 1.0, 1.0},
      {"twice at most", 100, 2.0, 2.0},  // ((200 - 100) * 1 + 100) / 100
      {"one per cent at least", 100, 0.0, 0.01},
      {"half way down", 100, 0.5, 0.505},  // (99 * 0.5 + 1) / 100
      {"a low value ends at the same height", 50, 2.0, 2.0},
      {"half way up", 50, 1.5, 1.25},  // (150 * 0.5 + 50) / 100
      {"a low value starts at the same depth", 50, 0.0, 0.01},
      {"a high value turns round above one", 300, 1.5, 2.5},  // (-100 * 0.5 + 300) / 100
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    StaringConfigItem* item = AddStaring();
    item->sensitivity_x = row.base;
    SetHandyStaringSensitivity(row.factor, 1.0);  // before view control and so before the value
    Stare();
    EXPECT_DOUBLE_EQ(row.expected, Sensitivity().x());
    EXPECT_DOUBLE_EQ(1.0, Sensitivity().y());
    SetHandyStaringSensitivity(1.0, row.factor);  // at once
    EXPECT_DOUBLE_EQ(row.base / 100.0, Sensitivity().x());
  }
}

TEST_F(Staring, TheHandyFactorSteersTheFingerAtOnce) {
  AddStaring();
  Stare();
  Play("rel 0,0; rel 10,10");
  SetHandyStaringSensitivity(2.0, 1.5);  // (200 - 100) * 0.5 + 100 = 150 per cent
  Play("rel 0,0");                       // the same counts move by another distance
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(650, 370), ViewAt(660, 375));
}

TEST_F(Staring, TheHandyFactorAloneGivesNoSensitivity) {
  SetHandyStaringSensitivity(2.0, 2.0);
  EXPECT_EQ(QPointF(0, 0), Sensitivity());
}

TEST_F(Staring, AnAxisWithoutValueKeepsTheSensitivityItHad) {
  StaringConfigItem* item = AddStaring();
  item->sensitivity_x = 120;
  Stare();
  item = AddStaring();
  item->sensitivity_x = 0;
  item->sensitivity_y = -5;
  Stare();
  EXPECT_EQ(QPointF(1.2, 1.0), Sensitivity());
  SetHandyStaringSensitivity(2.0, 2.0);
  EXPECT_EQ(QPointF(1.2, 1.0), Sensitivity());
}

// ---- The range ----

// Each row moves to the four edges, which are inside, and one pixel further, which is not.
TEST_F(Staring, AFingerThatLeavesTheRangeLiftsAndLandsOnTheCentre) {
  const struct {
    const char* name;
    const char* mode;
    double size;  // of the user range
    int left, top, right, bottom;
  } rows[] = {
      {"the user range", "Range_User", 0.5, 320, 180, 960, 540},
      {"half extents are whole pixels", "Range_User", 0.501, 320, 180, 960, 540},  // 641 >> 1, 360 >> 1
      {"the user range cut to the window", "Range_User", 2.0, 5, 5, 1275, 715},
      {"the user range beyond the window", "Range_User_Allow_Outside", 2.0, -640, -360, 1920, 1080},
      {"the window less a tenth", "Range_Have_Padding_To_Window", 0.5, 128, 72, 1152, 648},
      {"the window less its rim", "Range_Window", 0.5, 5, 5, 1275, 715},
      {"any other word", "range_user", 0.5, 5, 5, 1275, 715},
      {"no word", "", 0.5, 5, 5, 1275, 715},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    StaringConfigItem* item = AddStaring();
    item->range_mode = row.mode;
    item->range_size = {row.size, row.size};
    const struct {
      QPoint edge;
      QPoint outwards;
    } edges[] = {
        {{row.left, 360}, {-1, 0}},
        {{640, row.top}, {0, -1}},
        {{row.right, 360}, {1, 0}},
        {{640, row.bottom}, {0, 1}},
    };
    Stare();
    for (const auto& edge : edges) {
      const QPoint way = edge.edge - QPoint(640, 360);
      Play("rel 0,0");
      OnWindowsWmRelativeInputEvent(way.x(), way.y());
      OnWindowsWmRelativeInputEvent(edge.outwards.x(), edge.outwards.y());
      Play("rel 7,7; rel 1,1; down F; down F");
      EXPECT_WIRE(ViewAt(640, 360), ViewAt(edge.edge.x(), edge.edge.y()), kViewUp, ViewAt(640, 360), ViewAt(641, 361),
                  kViewUp, kViewUp);
    }
  }
}

TEST_F(Staring, AnInfiniteRangeIsNotTested) {
  AddStaring()->range_mode = "Infinite";
  Stare();
  Play("rel 0,0; rel 5000,-4000");
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(5640, -3640));
}

TEST_F(Staring, WithoutAutoResetTheFingerStopsAtTheUserRangeAndComesAllTheWayBack) {
  for (const char* mode : {"Infinite", "Range_Have_Padding_To_Window"}) {
    SCOPED_TRACE(mode);
    StaringConfigItem* item = AddStaring();
    item->auto_reset = false;
    item->range_mode = mode;  // not used
    Stare();
    // 400 - 50 counts are still beyond the 320 to the edge; 310 are not.
    Play("rel 0,0; rel 400,0; rel -50,0; rel -40,0");
    EXPECT_WIRE(ViewAt(640, 360), ViewAt(960, 360), ViewAt(960, 360), ViewAt(950, 360));
    Play("rel -1310,-1000; rel 0,3000");
    EXPECT_WIRE(ViewAt(320, 180), ViewAt(320, 540));
  }
}

TEST_F(Staring, WithoutAutoResetTheUserRangeIsNotCutToTheWindow) {
  StaringConfigItem* item = AddStaring();
  item->auto_reset = false;
  item->range_size = {2.0, 2.0};
  Stare();
  Play("rel 0,0; rel 5000,5000; rel -9000,-9000");
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(1920, 1080), ViewAt(-640, -360));
}

TEST_F(Staring, ARangeTurnedInsideOutHoldsNoFinger) {
  StaringConfigItem* item = AddStaring();
  item->range_mode = "Range_User";
  item->range_size = {-0.001, 0.5};  // -1.28 cut to -1, half of it downwards -1: from 641 to 639
  Stare();
  Play("rel 1,1; rel 1,1");
  EXPECT_WIRE(kViewUp, kViewUp);
}

TEST_F(Staring, TheCentreIsRounded) {
  StaringConfigItem* item = AddStaring();
  item->rel_x = 0.2503;  // 320.384
  item->rel_y = 0.2507;  // 180.504
  Stare();
  Play("rel 0,0");
  EXPECT_WIRE(ViewAt(320, 181));
}

TEST_F(Staring, ACentreInTheCornerCannotBeHeld) {
  StaringConfigItem* item = AddStaring();
  item->rel_x = 0;
  item->rel_y = 0;
  Stare();
  Play("rel 3,3; rel 3,3");  // each presses again, at the point that means no finger
  EXPECT_WIRE(kViewUp, kViewUp);
}

TEST_F(Staring, AFingerThatComesToTheCornerLifts) {
  AddStaring();
  Stare();
  Play("rel 0,0; rel -640,-359; rel 0,-1; rel 9,9");
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(0, 1), kViewUp, ViewAt(640, 360));
}

TEST_F(Staring, CountsRunOnPastTheRangeOfAnInt) {
  AddStaring()->auto_reset = false;
  Stare();
  Play("rel 0,0");
  OnWindowsWmRelativeInputEvent(std::numeric_limits<int>::max(), 0);
  OnWindowsWmRelativeInputEvent(1, 0);  // the lowest of all
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(960, 360), ViewAt(320, 360));
}

TEST_F(Staring, ValuesThatNoScreenHasAreHarmless) {
  constexpr double kHuge = 1e300;
  StaringConfigItem* item = AddStaring();
  item->rel_x = kHuge;
  item->rel_y = -kHuge;
  item->range_size = {kHuge, kHuge};
  item->auto_reset = false;
  SetHandyStaringSensitivity(kHuge, std::nan(""));
  Stare();
  Play("rel 1,1; rel 5,5; rel -5,-5");
  AddStaring();
  Stare();
  Forget();
  Play("rel 1,1");
  EXPECT_WIRE(ViewAt(640, 360));
}

// ---- The auto-reset timer ----

TEST_F(Staring, AutoResetLiftsTheFingerEachPeriod) {
  StaringConfigItem* item = AddStaring();
  item->auto_reset_period_ms = 100;
  item->press_interval_ms = 50;
  Load();
  Play("wait 50; down F");  // the period begins here
  Forget();
  Play("rel 0,0; wait 99; rel 5,5");
  EXPECT_WIRE("50ms 1:SLOTPRESS:1:1:1:1:640:360", "149ms 1:SLOTPRESS:1:1:1:1:645:365");
  Wait(1);
  EXPECT_WIRE("150ms 1:SLOTRELEASE:1");
  Play("wait 49; rel 5,5");  // the press interval counts from the release
  EXPECT_WIRE_NONE();
  Play("wait 1; rel 5,5");
  EXPECT_WIRE("200ms 1:SLOTPRESS:1:1:1:1:640:360");
  Wait(50);
  EXPECT_WIRE("250ms 1:SLOTRELEASE:1");
}

TEST_F(Staring, AutoResetTimerRunsOnlyWhereItIsAskedFor) {
  const struct {
    const char* name;
    bool auto_reset;
    int period;
  } rows[] = {{"no period", true, 0}, {"a negative period", true, -1}, {"no auto-reset", false, 100}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    StaringConfigItem* item = AddStaring();
    item->auto_reset = row.auto_reset;
    item->auto_reset_period_ms = row.period;
    Stare();
    Wait(500);
    EXPECT_WIRE_NONE();
  }
}

TEST_F(Staring, AutoResetEndsWithViewControlAndWithAReset) {
  AddStaring()->auto_reset_period_ms = 100;
  Stare();
  Play("wait 50; down F");
  Forget();
  Wait(500);
  EXPECT_WIRE_NONE();
  Play("down F; reset");
  Forget();
  Wait(500);
  EXPECT_WIRE_NONE();
}

// ---- Geometry ----

TEST_F(Staring, PointsAreOfTheDisplayAndPassAsPixelsOfTheWindow) {
  const struct {
    const char* name;
    const char* scene;
    QPoint centre;  // (0.25, 0.375) of the display, in touch coordinates
    QPoint moved;   // 32 right and 16 down
  } rows[] = {
      // Centre (480, 405) of the display: 480 / 1280 * 1280, 405 / 720 * 720.
      {"a display larger than window and surface", "guest 1920x1080", {480, 405}, {512, 421}},
      // Centre (320, 270): half of 640 and three quarters of 360, on a surface of 1280 x 720.
      {"a window half as large", "window 640x360", {640, 540}, {704, 572}},
      // Centre (180, 480) in a window of the same shape and size.
      {"portrait", "guest 720x1280; window 720x1280; touchpanel 720x1280", {180, 480}, {212, 496}},
      // The same in a window of 360 x 640: everything twice as far.
      {"portrait, half as large", "guest 720x1280; window 360x640; touchpanel 720x1280", {360, 960}, {424, 992}},
      // Centre (320, 270): fractions 0.25, 0.375. Turned: (1 - 0.375) * 720, 0.25 * 1280.
      // (352, 286): 1 - 286 / 720 of 720 is 434, 352 / 1280 of 1280 is 352.
      {"landscape on a surface turned by 90", "rotation 90; touchpanel 720x1280", {450, 320}, {434, 352}},
      // 0.375 * 720, (1 - 0.25) * 1280; 286, 1280 - 352.
      {"landscape on a surface turned by 270", "rotation 270; touchpanel 720x1280", {270, 960}, {286, 928}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    StaringConfigItem* item = AddStaring();
    item->rel_x = 0.25;
    item->rel_y = 0.375;
    Play("guest 1280x720; window 1280x720; touchpanel 1280x720; rotation 0");
    Play(row.scene);
    Stare();
    Play("rel 0,0; rel 32,16");
    EXPECT_WIRE(ViewAt(row.centre.x(), row.centre.y()), ViewAt(row.moved.x(), row.moved.y()));
  }
}

TEST_F(Staring, TheRangeIsThatOfTheDisplayAtItsBeginning) {
  AddStaring()->range_mode = "Range_Have_Padding_To_Window";
  Play("guest 640x360; window 640x360; touchpanel 640x360");
  Stare();
  Play("guest 1280x720; window 1280x720; touchpanel 1280x720; rel 0,0; rel 256,0; rel 1,0");
  EXPECT_WIRE(ViewAt(320, 180), ViewAt(576, 180), kViewUp);  // 0.9 * 640 = 576
}

TEST_F(Staring, ADisplayWithoutSizeHasNoPlaceForAFinger) {
  AddStaring();
  Play("guest 0x0; window 0x0");
  Stare();
  Play("rel 1,1; rel 1,1");
  EXPECT_WIRE(kViewUp, kViewUp);
}

// ---- The worker by itself ----

TEST_F(Staring, TheWorkerTurnsByCountsAndWithoutAnItemLosesThem) {
  const StaringConfigItem* item = AddStaring();
  Load();
  auto* worker = StaringWmRelativeInputWorker::GetInstance();
  worker->StartStaring(item);
  worker->OnStaringRelativeInput(item, 9, 9);
  worker->OnStaringRelativeInput(item, 5, 6);
  worker->OnStaringRelativeInput(nullptr, 50, 50);
  worker->OnStaringRelativeInput(item, 1, 1);
  EXPECT_WIRE(ViewAt(640, 360), ViewAt(645, 366), ViewAt(646, 367));
}

TEST_F(Staring, TheRangeIsAppliedToAFingerWhereverItIs) {
  StaringConfigItem* item = AddStaring();
  item->range_mode = "Range_User";
  Stare();
  auto* worker = StaringWmRelativeInputWorker::GetInstance();
  MouseSlotManager* finger = MouseSlotManager::GetInstance();
  finger->position = {960, 360};  // on the edge
  worker->ApplyStaringRange(item);
  finger->position = {961, 360};
  worker->ApplyStaringRange(item);
  EXPECT_WIRE(ViewAt(960, 360), kViewUp);

  item->auto_reset = false;
  finger->position = {1000, 100};
  worker->ApplyStaringRange(item);
  worker->ApplyStaringRange(nullptr);
  EXPECT_WIRE(ViewAt(960, 180));
}

TEST_F(Staring, TheSensitivityIsWorkedOutFromTheLastItem) {
  auto* worker = StaringWmRelativeInputWorker::GetInstance();
  worker->UpdateEffectiveSensitivity();
  EXPECT_EQ(QPointF(), Sensitivity());  // there was none
  StaringConfigItem* item = AddStaring();
  item->sensitivity_x = 50;
  Stare();
  item->sensitivity_x = 10;  // read when view control begins
  worker->UpdateEffectiveSensitivity();
  EXPECT_EQ(QPointF(0.5, 1), Sensitivity());
}

}  // namespace
}  // namespace taviinputmanager
