// Gamepads and the window: pressed buttons, with each keymap, and while the window is active.
#include "host/gamepad/gamepads.h"

#include <gtest/gtest.h>
#include <utility>

#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>

#include "host/session/keymap_watch.h"
#include "host/window/findings/diagnostics_panel.h"
#include "host/window/view/gamepad_picture.h"
#include "test_folders.h"
#include "tests/host/gamepad/pad_fixture.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

class GamepadsTest : public testing::Test {
 protected:
  PadRecord record_{0};
  Gamepads pads_{record_.Sink()};
};

TEST_F(GamepadsTest, EachHasItsOwnDevice) {
  pads_.Add(0, QStringLiteral("First"), PadFamily::kLettered);
  pads_.Add(4, QStringLiteral("Second"), PadFamily::kLettered);
  pads_.SetButton(0, QStringLiteral("a"), true);
  pads_.SetButton(4, QStringLiteral("a"), true);
  pads_.SetButton(5, QStringLiteral("a"), true);  // does not exist
  EXPECT_EQ(record_.Take(), (QStringList{"press A", "4: press A"}));
  EXPECT_EQ(pads_.Ids(), (QList<int>{0, 4}));
}

TEST_F(GamepadsTest, TheOneThatWasUsedLastIsShown) {
  pads_.Add(0, QStringLiteral("First"), PadFamily::kLettered);
  pads_.Add(1, QStringLiteral("Second"), PadFamily::kLettered);
  EXPECT_EQ(pads_.LastUsedName(), QStringLiteral("Second"));
  pads_.SetAxis(0, QStringLiteral("leftx"), 0.05);  // at rest
  pads_.SendSticks();
  EXPECT_EQ(pads_.LastUsedName(), QStringLiteral("Second"));
  pads_.SetAxis(0, QStringLiteral("leftx"), 1);
  pads_.SendSticks();
  EXPECT_EQ(pads_.LastUsedName(), QStringLiteral("First"));
  pads_.SetAxis(1, QStringLiteral("righttrigger"), 1);
  EXPECT_EQ(pads_.LastUsedName(), QStringLiteral("Second"));
  pads_.Remove(1);
  EXPECT_EQ(pads_.LastUsedName(), QStringLiteral("First"));
}

TEST_F(GamepadsTest, AllAreLetGoTogether) {
  pads_.Add(0, QStringLiteral("First"), PadFamily::kLettered);
  pads_.Add(1, QStringLiteral("Second"), PadFamily::kLettered);
  pads_.SetButton(0, QStringLiteral("a"), true);
  pads_.SetButton(1, QStringLiteral("b"), true);
  record_.Take();
  pads_.ReleaseAll();
  EXPECT_EQ(record_.Take(), (QStringList{"release A", "1: release B"}));
}

TEST_F(GamepadsTest, OneThatComesWhileNobodyListensIsNotHeard) {
  pads_.SetListening(false);
  pads_.Add(0, QStringLiteral("First"), PadFamily::kLettered);
  pads_.SetButton(0, QStringLiteral("a"), true);
  EXPECT_EQ(record_.Take(), QStringList());
}

TEST_F(GamepadsTest, ThePictureShowsWhatWasTold) {
  pads_.Add(0, QStringLiteral("First"), PadFamily::kLettered);
  for (const char* button : {"a", "dpup", "dpleft", "leftshoulder"}) pads_.SetButton(0, QLatin1String(button), true);
  pads_.SetAxis(0, QStringLiteral("righttrigger"), 1);
  pads_.SetAxis(0, QStringLiteral("lefty"), -1);
  pads_.SendSticks();
  const GamepadPicture picture = PictureOf(*pads_.LastUsed());
  EXPECT_EQ(picture.buttons, (QStringList{"A", "LB"}));
  EXPECT_EQ(picture.hat, QPoint(-1, -1));
  EXPECT_FALSE(picture.left_trigger);
  EXPECT_TRUE(picture.right_trigger);
  EXPECT_EQ(picture.left_stick, QPointF(0, -1));
}

QImage Drawn(const GamepadPicture& gamepad) {
  QImage image(250, 32, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  PaintGamepad(&painter, image.rect(), gamepad);
  return image;
}

TEST(GamepadPictures, EachPartIsSeen) {
  int argument_count = 0;
  const QGuiApplication application(argument_count, nullptr);
  QVector<GamepadPicture> pictures(10);
  pictures[1].hat = {0, -1};
  pictures[2].hat = {0, 1};
  pictures[3].hat = {-1, 0};
  pictures[4].hat = {1, 0};
  pictures[5].left_trigger = true;
  pictures[6].right_trigger = true;
  pictures[7].left_stick = {0.5, 0};
  pictures[8].right_stick = {0.5, 0};
  pictures[9].buttons = QStringList{"A"};
  for (int i = 0; i < pictures.size(); ++i) {
    for (int j = 0; j < i; ++j) EXPECT_NE(Drawn(pictures[i]), Drawn(pictures[j])) << i << " and " << j;
  }
}

class GamepadWindow : public WindowFixture {
 protected:
  GamepadWindow() {
    Load("");
    Window()->activateWindow();
    clock_->Settle();
    Window()->Pads()->Add(0, QStringLiteral("Pad"), PadFamily::kLettered);
  }
  void Hold(const char* button) { Window()->Pads()->SetButton(0, QLatin1String(button), true); }
  void LetGo(const char* button) { Window()->Pads()->SetButton(0, QLatin1String(button), false); }
  void Deactivate() {
    other_.show();
    other_.activateWindow();
    clock_->Settle();
    ASSERT_FALSE(Window()->isActiveWindow());
  }
  // The sentence above the diagnostics, of each keymap that has some.
  QStringList Complaints() {
    QStringList titles;
    for (const auto* panel : Window()->findChildren<DiagnosticsPanel*>()) {
      if (panel->isVisible()) titles += panel->findChild<QLabel*>()->text();
    }
    return titles;
  }

 private:
  QWidget other_;
};

TEST_F(GamepadWindow, BothKeymapsAreInUseTogether) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  LoadJoystick("{type: Click, key: Pad LB+A, point: [0.25, 0.5]}, {type: Click, key: Pad Up, point: [0.75, 0.5]}");
  Press(kSpace);
  ExpectNear(Finger(), 640, 360);
  Release(kSpace);
  Hold("leftshoulder");
  EXPECT_TRUE(Slots().isEmpty());
  Hold("a");
  ExpectNear(Finger(), 320, 360);
  LetGo("a");
  LetGo("leftshoulder");
  Hold("dpup");
  ExpectNear(Finger(), 960, 360);
}

TEST_F(GamepadWindow, AStickWalks) {
  LoadJoystick("{type: LeftStickWalk, point: [0.2, 0.5], walk_radius: 0.1}");
  Window()->Pads()->SetAxis(0, QStringLiteral("lefty"), -1);
  Window()->Pads()->SendSticks();
  ExpectNear(Finger(), 256, 232);  // 0.2 * 1280; 360 - 0.1 * 1280: upwards
  Window()->Pads()->SetAxis(0, QStringLiteral("lefty"), 0);
  Window()->Pads()->SendSticks();
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GamepadWindow, WhatIsHeldIsLetGoWithTheWindow) {
  LoadJoystick("{type: Click, key: Pad A, point: [0.5, 0.5]}, {type: Click, key: Pad B, point: [0.6, 0.5]}");
  Hold("a");
  EXPECT_EQ(Slots().size(), 1);
  Deactivate();
  EXPECT_TRUE(Slots().isEmpty());
  Hold("b");
  EXPECT_TRUE(Slots().isEmpty());
  LetGo("a");
  LetGo("b");
  Window()->activateWindow();
  clock_->Settle();
  Hold("b");
  ExpectNear(Finger(), 768, 360);
}

// A macro may keep input pressed while the player uses another window.
TEST_F(GamepadWindow, WhatAMacroHoldsStaysDown) {
  Load("{type: Macro, key: Space, press_commands: ['hold_switch']}");
  LoadJoystick("{type: Click, key: Pad A, point: [0.5, 0.5]}");
  Press(kSpace);
  Release(kSpace);
  clock_->Advance(100);
  Hold("a");
  Deactivate();
  EXPECT_EQ(Slots().size(), 1);
  LetGo("a");
  EXPECT_EQ(Slots().size(), 1);
  Window()->activateWindow();
  clock_->Settle();
  EXPECT_TRUE(Slots().isEmpty());
}

// A key must not stay down because its keymap was removed.
TEST_F(GamepadWindow, AnotherKeymapFindsNothingHeld) {
  LoadJoystick("{type: Click, key: Pad A, point: [0.5, 0.5]}");
  Hold("a");
  EXPECT_EQ(Slots().size(), 1);
  LoadJoystick("{type: Click, key: Pad B, point: [0.5, 0.5]}");
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GamepadWindow, ABrokenKeymapOfGamepadsIsTold) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  LoadJoystick("{type: Click, key: Pdd A, point: [0.5, 0.5]}");
  ASSERT_EQ(Complaints().size(), 1);
  EXPECT_TRUE(Complaints()[0].contains("The keymap of gamepads cannot be used"));
  Press(kSpace);
  EXPECT_EQ(Slots().size(), 1);  // the other one is in use
  LoadJoystick("{type: Click, key: Pad A, point: [0.5, 0.5]}");
  EXPECT_EQ(Complaints(), QStringList());
}

TEST_F(GamepadWindow, AKeymapOfGamepadsThatIsSavedIsReadAgain) {
  LoadJoystick("{type: Click, key: Pad A, point: [0.25, 0.5]}");
  Write("joystick.yaml", "{type: Click, key: Pad A, point: [0.75, 0.5]}");
  for (auto* watch : Window()->findChildren<KeymapWatch*>()) Q_EMIT watch->Changed();
  Hold("a");
  ExpectNear(Finger(), 960, 360);
}

// The gamepad input that is passed to the guest's own gamepad, as lines.
class PassThrough : public GamepadWindow {
 protected:
  PassThrough() {
    QObject::connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, &listener_, [this](const TimelineEntry& entry) {
      if (entry.source == TimelineEntry::Source::kLine) lines_ += entry.text;
    });
  }
  // Loads a gamepad keymap with settings.
  void LoadPads(const char* items, const char* settings) {
    Window()->LoadJoystickKeymap(Write("joystick.yaml", items, settings));
    TakeLines();
  }
  // A button from press to release.
  void Click(int pad, const char* button) {
    Window()->Pads()->SetButton(pad, QLatin1String(button), true);
    Window()->Pads()->SetButton(pad, QLatin1String(button), false);
  }
  void Click(const char* button) { Click(0, button); }
  void Pull(const char* axis, double value) {
    Window()->Pads()->SetAxis(0, QLatin1String(axis), value);
    Window()->Pads()->SendSticks();
  }
  // Since the last call.
  QStringList TakeLines() { return std::exchange(lines_, QStringList()); }

 private:
  QStringList lines_;
  QObject listener_;
};

TEST_F(PassThrough, WhatTheKeymapLeavesIsTheGuestsGamepad) {
  LoadPads("{type: Click, key: Pad A, point: [0.5, 0.5]}", "settings: {joystick_transparent: true}");
  Hold("a");
  ExpectNear(Finger(), 640, 360);
  LetGo("a");
  EXPECT_EQ(TakeLines().filter("GPDBUTTON"), QStringList());
  Hold("b");
  EXPECT_EQ(Guest().gamepad.buttons, QSet<int>{305});
  LetGo("b");
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:305:1", "1:GPDBUTTON:305:0"}));
  Click("dpup");
  Click("dpright");
  EXPECT_EQ(TakeLines(), (QStringList{"1:HATY:-1", "1:HATY:0", "1:HATX:1", "1:HATX:0"}));
  Pull("lefttrigger", 1);
  Pull("lefttrigger", 0);
  Pull("righttrigger", 1);
  EXPECT_EQ(TakeLines(), (QStringList{"1:LTRIGGERAXIS:1", "1:LTRIGGERAXIS:0", "1:RTRIGGERAXIS:1"}));
  Pull("leftx", 1);
  EXPECT_EQ(TakeLines(), QStringList{"1:LSTICKAXIS:1000000:0"});
  Pull("leftx", 0);
  EXPECT_EQ(TakeLines(), QStringList{"1:LSTICKAXIS:0:0"});
  Pull("righty", -1);
  EXPECT_EQ(TakeLines(), QStringList{"1:RSTICKAXIS:0:-1000000"});
}

TEST_F(PassThrough, WithoutAKeymapOfGamepadsEverythingPasses) {
  Click("a");
  Click("start");
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:304:1", "1:GPDBUTTON:304:0",  //
                                      "1:GPDBUTTON:315:1", "1:GPDBUTTON:315:0"}));
}

TEST_F(PassThrough, NothingPassesUnlessTheKeymapLetsIt) {
  LoadPads("{type: Click, key: Pad A, point: [0.5, 0.5]}", "");
  Click("b");
  Click("dpup");
  Pull("lefttrigger", 1);
  Pull("leftx", 1);
  EXPECT_EQ(TakeLines(), QStringList());
  EXPECT_FALSE(Guest().gamepad.used);
}

TEST_F(PassThrough, TriggersAreButtonsWhereTheKeymapSaysSo) {
  LoadPads("", "settings: {joystick_transparent: true}\nwheel: {simulate_mode: 1}");
  Pull("lefttrigger", 1);
  Pull("lefttrigger", 0);
  Pull("righttrigger", 1);
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:312:1", "1:GPDBUTTON:312:0", "1:GPDBUTTON:313:1"}));
}

TEST_F(PassThrough, AnXboxPadHasNoHomeButtonForTheGuest) {
  Click("guide");
  Click("touchpad");
  EXPECT_EQ(TakeLines(), QStringList());
}

// Its lettered buttons use letters all the same. The touchpad is touched in the middle of 1280 x 720.
TEST_F(PassThrough, APlayStationPadHasItsHomeButtonAndItsTouchpad) {
  Window()->Pads()->Add(1, QStringLiteral("DualSense"), PadFamily::kPlayStation);
  Click(1, "guide");
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:316:1", "1:GPDBUTTON:316:0"}));
  Click(1, "touchpad");
  EXPECT_EQ(TakeLines(), (QStringList{"1:TOUCHPADLIGHTTOUCH:640:360", "1:TOUCHPADPRESS", "1:TOUCHPADRELEASE"}));
  Click(1, "a");
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:304:1", "1:GPDBUTTON:304:0"}));
}

// The gamepad for keys is device 100801, and its buttons have letters and the corresponding numbers: 13 is the pressed
// left stick, whereas a PlayStation gamepad has its touchpad there.
TEST_F(PassThrough, TheGamepadThatKeysPlayGoesByLetters) {
  Window()->Pads()->Add(1, QStringLiteral("DualSense"), PadFamily::kPlayStation);
  Load("{type: VirtualJoystickButton, key: Space, map_text: A}, {type: VirtualJoystickButton, key: W, map_text: '13'}",
       "wheel: {virtual_joystick: true}");
  TakeLines();
  Press(kSpace);
  Release(kSpace);
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:304:1", "1:GPDBUTTON:304:0"}));
  Press(kW);
  Release(kW);
  EXPECT_EQ(TakeLines(), (QStringList{"1:GPDBUTTON:317:1", "1:GPDBUTTON:317:0"}));
}

TEST_F(GamepadWindow, DrawsAPadAndItsName) {
  Window()->LoadKeymap(TAVI_SOURCE_DIR "/examples/keymaps/shooter.yaml");
  Window()->LoadJoystickKeymap(TAVI_SOURCE_DIR "/examples/keymaps/shooter_gamepad.yaml");
  Hold("a");
  Hold("dpup");
  Window()->Pads()->SetAxis(0, QStringLiteral("lefty"), -1);
  Window()->Pads()->SendSticks();
  clock_->Advance(100);
  const QImage picture = Window()->grab().toImage();
  const QString wanted = qEnvironmentVariable("TAVI_TEST_PICTURE");
  if (!wanted.isEmpty()) picture.save(wanted);
  EXPECT_FALSE(picture.isNull());
}

}  // namespace
}  // namespace tavi
