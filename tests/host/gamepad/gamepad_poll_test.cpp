// Virtual gamepads of SDL, from the device to the guest. Built only with SDL.
#ifdef TAVI_HAS_SDL

#define SDL_MAIN_HANDLED
#include "host/gamepad/gamepad_poll.h"

#include <SDL.h>
#include <gtest/gtest.h>
#include <memory>

#include "host/gamepad/gamepads.h"
#include "tests/host/gamepad/pad_fixture.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

constexpr int kReadWithoutPadsMs = 500;
constexpr int kReadMs = 8;
constexpr Sint16 kMost = 32767;

// The positions of its buttons and axes are defined by the mapping below.
constexpr char kMapping[] =
    "a:b0,b:b1,x:b2,y:b3,back:b4,guide:b5,start:b6,leftstick:b7,rightstick:b8,leftshoulder:b9,rightshoulder:b10,"
    "touchpad:b11,dpup:h0.1,dpright:h0.2,dpdown:h0.4,dpleft:h0.8,leftx:a0,lefty:a1,rightx:a2,righty:a3,"
    "lefttrigger:a4,righttrigger:a5,";

struct Model {
  Uint16 vendor;
  Uint16 product;
  const char* name;
};
constexpr Model kXbox = {0x045E, 0x028E, "Some Xbox pad"};
constexpr Model kPlayStation = {0x054C, 0x09CC, "Some PlayStation pad"};

// A gamepad that is connected as long as this object exists.
class VirtualPad {
 public:
  explicit VirtualPad(const Model& model) : index_(Attach(model)) {
    // The mapping refers to an id that is known only once there is a device.
    char guid[33];
    SDL_JoystickGetGUIDString(SDL_JoystickGetDeviceGUID(index_), guid, sizeof guid);
    SDL_JoystickDetachVirtual(index_);
    SDL_FlushEvents(SDL_JOYAXISMOTION, SDL_CONTROLLERSENSORUPDATE);
    SDL_GameControllerAddMapping((QByteArray(guid) + "," + model.name + "," + kMapping).constData());
    index_ = Attach(model);
    EXPECT_TRUE(SDL_IsGameController(index_));
    device_ = SDL_JoystickOpen(index_);
  }
  ~VirtualPad() {
    if (device_) Unplug();
  }

  void Unplug() {
    SDL_JoystickDetachVirtual(index_);
    SDL_JoystickClose(std::exchange(device_, nullptr));
  }
  // If SDL ended before it did.
  void Forget() { device_ = nullptr; }
  void Button(int button, bool down) { SDL_JoystickSetVirtualButton(device_, button, down ? 1 : 0); }
  void Axis(int axis, Sint16 value) { SDL_JoystickSetVirtualAxis(device_, axis, value); }
  void Hat(Uint8 value) { SDL_JoystickSetVirtualHat(device_, 0, value); }

 private:
  static int Attach(const Model& model) {
    SDL_VirtualJoystickDesc description = {};
    description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
    description.type = SDL_JOYSTICK_TYPE_GAMECONTROLLER;
    description.naxes = 6;
    description.nbuttons = 12;
    description.nhats = 1;
    description.vendor_id = model.vendor;
    description.product_id = model.product;
    description.name = model.name;
    return SDL_JoystickAttachVirtualEx(&description);
  }

  int index_;
  SDL_Joystick* device_ = nullptr;
};

class GamepadPollTest : public WindowFixture {
 protected:
  GamepadPollTest() {
    // Real gamepads are ignored.
    SDL_SetHint(SDL_HINT_GAMECONTROLLER_IGNORE_DEVICES_EXCEPT, "0x045E/0x028E,0x054C/0x09CC");
  }

  void Start() { poll_ = std::make_unique<GamepadPoll>(&pads_); }
  void PlugIn(const Model& model) {
    pad_ = std::make_unique<VirtualPad>(model);
    clock_->Advance(kReadWithoutPadsMs);
    pad_->Axis(4, -kMost - 1);  // triggers at rest
    pad_->Axis(5, -kMost - 1);
    clock_->Advance(kReadMs);
    record_.Take();
  }
  QStringList Told() {
    clock_->Advance(kReadMs);
    return record_.Take();
  }

  PadRecord record_{1};  // the second device of SDL
  Gamepads pads_{record_.Sink()};
  std::unique_ptr<GamepadPoll> poll_;
  std::unique_ptr<VirtualPad> pad_;
};

TEST_F(GamepadPollTest, APadComesAndGoes) {
  Start();
  EXPECT_EQ(pads_.Count(), 0);
  PlugIn(kXbox);
  EXPECT_EQ(pads_.Count(), 1);
  EXPECT_EQ(pads_.LastUsedName(), QStringLiteral("Some Xbox pad"));
  pad_->Unplug();
  clock_->Advance(kReadMs);
  EXPECT_EQ(pads_.Count(), 0);
  EXPECT_EQ(pads_.LastUsed(), nullptr);
}

TEST_F(GamepadPollTest, ButtonsAreTold) {
  Start();
  PlugIn(kXbox);
  const struct {
    int button;
    const char* text;
  } rows[] = {{0, "A"},     {1, "B"},  {2, "X"},  {3, "Y"},  {4, "Back"},
              {6, "Start"}, {7, "LA"}, {8, "RA"}, {9, "LB"}, {10, "RB"}};
  for (const auto& row : rows) {
    pad_->Button(row.button, true);
    EXPECT_EQ(Told(), QStringList(QStringLiteral("press %1").arg(QLatin1String(row.text))));
    pad_->Button(row.button, false);
    EXPECT_EQ(Told(), QStringList(QStringLiteral("release %1").arg(QLatin1String(row.text))));
  }
  pad_->Button(5, true);  // SDL makes its press last for at least a quarter of a second
  EXPECT_EQ(Told(), QStringList{"press Guide"});
}

TEST_F(GamepadPollTest, APlayStationsTouchpadIsAButton) {
  Start();
  PlugIn(kPlayStation);
  pad_->Button(11, true);
  EXPECT_EQ(Told(), QStringList{"1000001: press 13"});
  pad_->Button(5, true);
  EXPECT_EQ(Told(), QStringList{"1000001: press 12"});
  pad_->Button(0, true);
  EXPECT_EQ(Told(), QStringList{"press A"});
}

TEST_F(GamepadPollTest, TheHatGoesFromEndToEnd) {
  Start();
  PlugIn(kXbox);
  pad_->Hat(SDL_HAT_LEFT);
  EXPECT_EQ(Told(), QStringList{"press \u2190"});
  pad_->Hat(SDL_HAT_RIGHT);
  EXPECT_EQ(Told(), (QStringList{"release \u2190", "press \u2192"}));
  pad_->Hat(SDL_HAT_LEFT);
  EXPECT_EQ(Told(), (QStringList{"release \u2192", "press \u2190"}));
  pad_->Hat(SDL_HAT_LEFTUP);
  EXPECT_EQ(Told(), QStringList{"press \u2191"});
  pad_->Hat(SDL_HAT_CENTERED);
  EXPECT_EQ(Told().size(), 2);
  EXPECT_EQ(pads_.LastUsed()->Pressed(), QStringList());
}

TEST_F(GamepadPollTest, SticksAndTriggersAreTold) {
  Start();
  PlugIn(kXbox);
  pad_->Axis(0, -kMost - 1);
  pad_->Axis(3, kMost);
  clock_->Advance(kReadMs);
  clock_->Advance(Gamepads::kStickMs);
  EXPECT_EQ(record_.Take(), (QStringList{"left -1,0", "right 0,1"}));
  clock_->Advance(Gamepads::kStickMs);
  EXPECT_EQ(record_.Take(), QStringList{"right 0,1"});
  pad_->Axis(3, 0);
  pad_->Axis(0, 0);
  clock_->Advance(Gamepads::kStickMs);
  EXPECT_EQ(record_.Take(), (QStringList{"left 0,0", "right 0,0"}));
  pad_->Axis(5, kMost);
  EXPECT_EQ(Told(), QStringList{"press RT"});
  pad_->Axis(5, -kMost - 1);
  EXPECT_EQ(Told(), QStringList{"release RT"});
}

TEST_F(GamepadPollTest, WhatAPadHeldIsLetGoWhenItGoes) {
  Start();
  PlugIn(kXbox);
  pad_->Button(0, true);
  pad_->Axis(0, kMost);
  clock_->Advance(kReadMs);
  clock_->Advance(Gamepads::kStickMs);
  EXPECT_EQ(record_.Take(), (QStringList{"press A", "left 1,0"}));
  pad_->Unplug();
  EXPECT_EQ(Told(), (QStringList{"release A", "left 0,0"}));
}

TEST_F(GamepadPollTest, WhatAPadHeldIsLetGoWithThePoll) {
  Start();
  PlugIn(kXbox);
  pad_->Button(0, true);
  EXPECT_EQ(Told(), QStringList{"press A"});
  poll_.reset();
  EXPECT_EQ(record_.Take(), QStringList{"release A"});
  pad_->Forget();
}

// From the device to the finger.
TEST_F(GamepadPollTest, AButtonTapsOnTheGuest) {
  Load("");
  LoadJoystick("{type: Click, key: Pad A, point: [0.25, 0.75]}");
  Window()->ReadGamepads();
  PlugIn(kXbox);
  EXPECT_EQ(Window()->Pads()->Count(), 1);
  pad_->Button(0, true);
  clock_->Advance(kReadMs);
  EXPECT_EQ(Slots(), QList<int>{11});  // the first slot for taps
  ExpectNear(Finger(), 320, 540);      // 0.25 * 1280, 0.75 * 720
  pad_->Unplug();
  clock_->Advance(kReadMs);
  EXPECT_TRUE(Slots().isEmpty());
}

}  // namespace
}  // namespace tavi

#endif  // TAVI_HAS_SDL
