// Fingers on the screen.
#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

class TouchLines : public PlayedLines {};

TEST_F(TouchLines, AFingerGoesDownMovesAndGoesUp) {
  EXPECT_EQ(Play("SLOTPRESS:2:2:1:1:640:360"), (Texts{
                                                   "screen EV_ABS ABS_MT_SLOT 2",
                                                   "screen EV_ABS ABS_MT_TRACKING_ID 2",
                                                   "screen EV_ABS ABS_MT_POSITION_X 640",
                                                   "screen EV_ABS ABS_MT_POSITION_Y 360",
                                                   "screen EV_KEY BTN_TOUCH 1",
                                                   "screen EV_SYN SYN_REPORT 0",
                                               }));
  EXPECT_EQ(Play("SLOTPRESS:2:2:1:1:650:370"), (Texts{
                                                   "screen EV_ABS ABS_MT_SLOT 2",
                                                   "screen EV_ABS ABS_MT_POSITION_X 650",
                                                   "screen EV_ABS ABS_MT_POSITION_Y 370",
                                                   "screen EV_SYN SYN_REPORT 0",
                                               }));
  EXPECT_EQ(Play("SLOTRELEASE:2"), (Texts{
                                       "screen EV_ABS ABS_MT_SLOT 2",
                                       "screen EV_ABS ABS_MT_TRACKING_ID -1",
                                       "screen EV_KEY BTN_TOUCH 0",
                                       "screen EV_SYN SYN_REPORT 0",
                                   }));
}

TEST_F(TouchLines, TheTrackingIdIsTheLines) {
  EXPECT_EQ(Play("SLOTPRESS:2:7:1:1:0:0").at(1), "screen EV_ABS ABS_MT_TRACKING_ID 7");
}

TEST_F(TouchLines, AMoveKeepsItsTrackingIdWhateverTheLineSays) {
  Play("SLOTPRESS:2:2:1:1:640:360");
  EXPECT_EQ(Play("SLOTPRESS:2:3:1:1:650:370"), (Texts{
                                                   "screen EV_ABS ABS_MT_SLOT 2",
                                                   "screen EV_ABS ABS_MT_POSITION_X 650",
                                                   "screen EV_ABS ABS_MT_POSITION_Y 370",
                                                   "screen EV_SYN SYN_REPORT 0",
                                               }));
}

TEST_F(TouchLines, AFingerThatIsUpDoesNotGoUp) {
  EXPECT_EQ(Play("SLOTRELEASE:3"), Texts{});
  EXPECT_EQ(Play("SLOTMULTIRELEASE:10:0"), Texts{});
  EXPECT_EQ(Play("SLOTRELEASEALL"), Texts{});
  Play("SLOTPRESS:3:3:1:1:640:360");
  Play("SLOTRELEASE:3");
  EXPECT_EQ(Play("SLOTRELEASE:3"), Texts{});
}

TEST_F(TouchLines, TheScreenIsTouchedWhileAnyFingerIs) {
  Play("SLOTPRESS:2:2:1:1:640:360");
  EXPECT_EQ(Play("SLOTPRESS:11:11:1:1:10:20"), (Texts{
                                                   "screen EV_ABS ABS_MT_SLOT 11",
                                                   "screen EV_ABS ABS_MT_TRACKING_ID 11",
                                                   "screen EV_ABS ABS_MT_POSITION_X 10",
                                                   "screen EV_ABS ABS_MT_POSITION_Y 20",
                                                   "screen EV_SYN SYN_REPORT 0",
                                               }));
  EXPECT_EQ(Play("SLOTRELEASE:2"), (Texts{
                                       "screen EV_ABS ABS_MT_SLOT 2",
                                       "screen EV_ABS ABS_MT_TRACKING_ID -1",
                                       "screen EV_SYN SYN_REPORT 0",
                                   }));
  EXPECT_EQ(Play("SLOTRELEASE:11").at(2), "screen EV_KEY BTN_TOUCH 0");
}

TEST_F(TouchLines, APinchIsOneFrame) {
  EXPECT_EQ(Play("SLOTMULTIPRESS:10:10:600:300:0:0:700:400"), (Texts{
                                                                  "screen EV_ABS ABS_MT_SLOT 10",
                                                                  "screen EV_ABS ABS_MT_TRACKING_ID 10",
                                                                  "screen EV_ABS ABS_MT_POSITION_X 600",
                                                                  "screen EV_ABS ABS_MT_POSITION_Y 300",
                                                                  "screen EV_ABS ABS_MT_SLOT 0",
                                                                  "screen EV_ABS ABS_MT_TRACKING_ID 0",
                                                                  "screen EV_ABS ABS_MT_POSITION_X 700",
                                                                  "screen EV_ABS ABS_MT_POSITION_Y 400",
                                                                  "screen EV_KEY BTN_TOUCH 1",
                                                                  "screen EV_SYN SYN_REPORT 0",
                                                              }));
  EXPECT_EQ(Play("SLOTMULTIPRESS:10:10:590:290:0:0:710:410"), (Texts{
                                                                  "screen EV_ABS ABS_MT_SLOT 10",
                                                                  "screen EV_ABS ABS_MT_POSITION_X 590",
                                                                  "screen EV_ABS ABS_MT_POSITION_Y 290",
                                                                  "screen EV_ABS ABS_MT_SLOT 0",
                                                                  "screen EV_ABS ABS_MT_POSITION_X 710",
                                                                  "screen EV_ABS ABS_MT_POSITION_Y 410",
                                                                  "screen EV_SYN SYN_REPORT 0",
                                                              }));
  EXPECT_EQ(Play("SLOTMULTIRELEASE:10:0"), (Texts{
                                               "screen EV_ABS ABS_MT_SLOT 10",
                                               "screen EV_ABS ABS_MT_TRACKING_ID -1",
                                               "screen EV_ABS ABS_MT_SLOT 0",
                                               "screen EV_ABS ABS_MT_TRACKING_ID -1",
                                               "screen EV_KEY BTN_TOUCH 0",
                                               "screen EV_SYN SYN_REPORT 0",
                                           }));
}

TEST_F(TouchLines, AllFingersGoUpInOneFrame) {
  Play("SLOTPRESS:25:25:1:1:640:360");
  Play("SLOTPRESS:0:0:1:1:640:360");
  EXPECT_EQ(Play("SLOTRELEASEALL"), (Texts{
                                        "screen EV_ABS ABS_MT_SLOT 0",
                                        "screen EV_ABS ABS_MT_TRACKING_ID -1",
                                        "screen EV_ABS ABS_MT_SLOT 25",
                                        "screen EV_ABS ABS_MT_TRACKING_ID -1",
                                        "screen EV_KEY BTN_TOUCH 0",
                                        "screen EV_SYN SYN_REPORT 0",
                                    }));
}

// 1280 is beyond the last position, 1279.
TEST_F(TouchLines, PlacesOffTheSurfaceAreItsEdge) {
  const Texts corner = Play("SLOTPRESS:1:1:1:1:1280:-5");
  EXPECT_EQ(corner.at(2), "screen EV_ABS ABS_MT_POSITION_X 1279");
  EXPECT_EQ(corner.at(3), "screen EV_ABS ABS_MT_POSITION_Y 0");
}

TEST_F(TouchLines, FractionsAreTheNearestPlace) {
  const Texts finger = Play("SLOTMULTIPRESS:18:18:640.5:359.6");
  EXPECT_EQ(finger.at(2), "screen EV_ABS ABS_MT_POSITION_X 641");
  EXPECT_EQ(finger.at(3), "screen EV_ABS ABS_MT_POSITION_Y 360");
}

TEST_F(TouchLines, ThereAreSlotsFromZeroToTwentyFive) {
  for (const char* line : {"SLOTPRESS:26:26:1:1:1:1", "SLOTPRESS:-1:-1:1:1:1:1", "SLOTMULTIPRESS:26:26:1:1",
                           "SLOTRELEASE:26", "SLOTMULTIRELEASE:-1"}) {
    EXPECT_EQ(ProblemOf(line), "there is no such slot") << line;
  }
}

// -1 would lift the finger, and the kernel accepts no id above 65535.
TEST_F(TouchLines, TrackingIdsHaveLimits) {
  EXPECT_EQ(ProblemOf("SLOTPRESS:2:-1:1:1:1:1"), "there is no such slot");
  EXPECT_EQ(ProblemOf("SLOTPRESS:2:65536:1:1:1:1"), "there is no such slot");
  EXPECT_EQ(Play("SLOTPRESS:2:65535:1:1:1:1").at(1), "screen EV_ABS ABS_MT_TRACKING_ID 65535");
}

TEST_F(TouchLines, TheOtherFingersOfALineCountAllTheSame) {
  const Translation translation = translator_.Translate(ParseGuestLine("SLOTMULTIPRESS:26:26:1:1:18:18:2:3"));
  EXPECT_EQ(translation.problem, "there is no such slot");
  EXPECT_EQ(TextsOf(translation.events), (Texts{
                                             "screen EV_ABS ABS_MT_SLOT 18",
                                             "screen EV_ABS ABS_MT_TRACKING_ID 18",
                                             "screen EV_ABS ABS_MT_POSITION_X 2",
                                             "screen EV_ABS ABS_MT_POSITION_Y 3",
                                             "screen EV_KEY BTN_TOUCH 1",
                                             "screen EV_SYN SYN_REPORT 0",
                                         }));
}

}  // namespace
}  // namespace taviguest
