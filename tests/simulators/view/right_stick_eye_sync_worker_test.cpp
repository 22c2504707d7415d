#include "simulators/view/right_stick_eye_sync_worker.h"

#include "keymap/tavikeymapmanager.h"
#include "simulators/view/right_stick_eye_event_simulator.h"
#include "tests/support/finger_lines.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::JoystickRightEyeConfigItem;

// The area's centre is (640, 360). A full deflection moves the contact by 0.005 * 1280 = 6.4 pixels per event at a
// sensitivity of 100 per cent, and by 64 at 1000.
class RightStickEye : public Story {
 protected:
  void SetUp() override { Load(); }  // an empty keymap, for display 1

  JoystickRightEyeConfigItem* AddEye(const QString& range_mode = "Infinite", const QSizeF& range_size = {0.5, 0.5}) {
    auto* item = Add<JoystickRightEyeConfigItem>("RightStickEye", "Pad Right_Stick", {0.5, 0.5});
    item->range_mode = range_mode;
    item->range_size = range_size;
    return item;
  }
  void Turn(const char* event, int times) {
    for (int i = 0; i < times; ++i) Play(event);
  }
  static QString At(int x, int y) { return FingerLines(9).At(0, x, y); }
  static QString Up() { return FingerLines(9).Up(0); }
};

TEST_F(RightStickEye, EachEventMovesTheFingerOn) {
  AddEye();
  LoadJoystick();
  Play("joy axis 1 1,0");  // the first presses on the centre, wherever the stick is
  EXPECT_WIRE(At(640, 360));
  Play("joy axis 1 1,0; joy axis 1 1,0");  // 6.4 is rounded each time
  EXPECT_WIRE(At(646, 360), At(652, 360));
  Play("joy axis 1 0,1; joy axis 1 0,-1");  // the width counts for both axes
  EXPECT_WIRE(At(652, 366), At(652, 360));
  Play("joy axis 1 -1,-0.25");  // -6.4 and -1.6
  EXPECT_WIRE(At(646, 358));
  Play("joy axis 1 0,0");
  EXPECT_WIRE(Up());
  Play("joy axis 1 0,-1");
  EXPECT_WIRE(At(640, 360));
}

TEST_F(RightStickEye, SensitivityIsInPerCent) {
  AddEye()->sensitivity = 150;
  LoadJoystick();
  Play("joy axis 1 1,0; joy axis 1 1,0.5");  // 9.6 and 4.8
  EXPECT_WIRE(At(640, 360), At(650, 365));
}

TEST_F(RightStickEye, AStickAtRestLiftsInAnyCase) {
  AddEye();
  LoadJoystick();
  Play("joy axis 1 0,0");
  EXPECT_WIRE(Up());
}

TEST_F(RightStickEye, LiftsAtTheEdgeAndStartsAgainFromTheCentre) {
  AddEye("Range_User")->sensitivity = 1000;  // the area is from 640 - 320 to 640 + 320
  LoadJoystick();
  Turn("joy axis 1 1,0", 5);
  Forget();
  Play("joy axis 1 1,0");  // on the edge, which is inside
  EXPECT_WIRE(At(960, 360));
  Play("joy axis 1 0.01,0");  // 0.64: one pixel beyond
  EXPECT_WIRE(Up());
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(640, 360));
}

TEST_F(RightStickEye, EachModeHasItsEdge) {
  const struct {
    const char* mode;
    double size;
    int events;  // that stay inside, by 64 pixels each
  } rows[] = {
      {"Range_User", 0.5, 5},                    // 960
      {"Range_User", 2, 9},                      // 1920 is cut to 1275; 640 + 9 * 64 = 1216
      {"Range_User_Allow_Outside", 2, 20},       // 1920
      {"Range_Have_Padding_To_Window", 0.5, 8},  // 1152
      {"Range_Window", 0.5, 9},                  // 1275
      {"of no such name", 0.5, 9},               // the same
      {"Infinite", 0.5, 1000},                   // none
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.mode);
    AddEye(row.mode, {row.size, row.size})->sensitivity = 1000;
    LoadJoystick();
    Turn("joy axis 1 1,0", 1 + row.events);
    EXPECT_EQ(At(640 + 64 * row.events, 360), TakeWire().last());
    Play("joy axis 1 1,0");
    const bool is_endless = row.mode == QLatin1String("Infinite");
    EXPECT_EQ(is_endless ? At(640 + 64 * 1001, 360) : Up(), TakeWire().last());
    Play("joy axis 1 0,0");
  }
}

TEST_F(RightStickEye, WithoutAutoResetItStaysAtTheBorder) {
  auto* item = AddEye("Infinite");  // not used
  item->auto_reset = false;
  item->sensitivity = 1000;
  LoadJoystick();
  Turn("joy axis 1 1,1", 8);
  Forget();
  Play("joy axis 1 1,1");  // 640 + 320 and 360 + 180
  EXPECT_WIRE(At(960, 540));
  Play("joy axis 1 -1,-1");  // back at once: nothing is accumulated beyond the border
  EXPECT_WIRE(At(896, 476));
  Turn("joy axis 1 -1,-1", 20);
  EXPECT_EQ(At(320, 180), TakeWire().last());
}

TEST_F(RightStickEye, CountsInWidthsInPortraitToo) {
  Host().window = {0, 0, 720, 1280};
  Host().display = QRect(0, 0, 720, 1280);
  Host().touch = QRect(0, 0, 720, 1280);
  AddEye();
  LoadJoystick();
  Play("joy axis 1 1,1; joy axis 1 1,1");  // 0.005 * 720 = 3.6
  EXPECT_WIRE(At(360, 640), At(364, 644));
}

TEST_F(RightStickEye, GoesToATurnedTouchSurfaceFromAWindowOfAnotherSize) {
  Host().window = {0, 0, 2560, 1440};
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 90;
  AddEye()->sensitivity = 1000;
  LoadJoystick();
  // (640, 360) and (704, 360) of a window twice as large: x = 720 * (1 - 0.25), y = 1280 * 0.25 and 1280 * 0.275.
  Play("joy axis 1 1,0; joy axis 1 1,0");
  EXPECT_WIRE(At(540, 320), At(540, 352));
}

TEST_F(RightStickEye, AnEndlessTurnStopsAtTheLastNumber) {
  AddEye()->sensitivity = 2147483647;
  LoadJoystick();
  Turn("joy axis 1 1,-1", 50);  // 137438953 pixels each
  Play("joy axis 1 0,0");
  EXPECT_EQ(Up(), TakeWire().last());
}

TEST_F(RightStickEye, AResetLiftsAndAJoystickLoadDoesNot) {
  AddEye();
  LoadJoystick();
  Play("joy axis 1 1,0; joy axis 1 1,0");
  AddEye();
  LoadJoystick();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(652, 360));  // on from where the old item left it
  Play("reset full");
  Forget();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(640, 360));
}

// From a stick that is held while its item and the display change, to its next press.
TEST_F(RightStickEye, AreaAndSpeedAreThoseOfThePress) {
  AddEye("Range_User")->sensitivity = 1000;  // 64 pixels an event, up to 960
  LoadJoystick();
  Turn("joy axis 1 1,0", 5);
  Forget();
  auto* other = AddEye("Range_User", {0.9, 0.9});
  other->rel_x = other->rel_y = 0.2;
  LoadJoystick();
  Host().display = QRect(0, 0, 2560, 1440);
  Play("joy axis 1 1,0; joy axis 1 0.01,0");
  EXPECT_WIRE(At(960, 360), Up());
  Play("joy axis 1 1,0; joy axis 1 1,0");  // on (512, 288), and 0.005 * 2560 = 12.8 on
  EXPECT_WIRE(At(512, 288), At(525, 288));
}

TEST_F(RightStickEye, WhatHappensAtTheEdgeIsTheItemsOfTheMoment) {
  AddEye("Range_User")->sensitivity = 1000;
  LoadJoystick();
  Turn("joy axis 1 1,0", 6);  // 960
  Forget();
  AddEye("Infinite");
  LoadJoystick();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(1024, 360));
  AddEye("Infinite")->auto_reset = false;
  LoadJoystick();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(960, 360));
}

TEST_F(RightStickEye, AKeyTurnsNothing) {
  JoystickRightEyeConfigItem item;
  tavikeymapmanager::ConfigKey key;
  RightStickEyeEventSimulator::GetInstance()->Press(&item, &key);
  RightStickEyeEventSimulator::GetInstance()->Release(&item, &key);
  RightStickEyeEventSimulator::GetInstance()->OnStick(nullptr, {1, 0});
  EXPECT_WIRE_NONE();
}

TEST_F(RightStickEye, TheWorkerNeedsAnItem) {
  const JoystickRightEyeConfigItem* item = AddEye();
  LoadJoystick();
  RightStickEyeSyncWorker* worker = RightStickEyeSyncWorker::GetInstance();
  worker->OnStick(nullptr, {1, 0});
  EXPECT_WIRE_NONE();
  worker->OnStick(item, {1, 0});
  worker->OnStick(nullptr, {});
  EXPECT_WIRE(At(640, 360));
  worker->OnStick(item, {});
  EXPECT_WIRE(Up());
}

}  // namespace
}  // namespace taviinputmanager
