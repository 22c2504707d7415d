// A gamepad that passes through to the guest.
#include "handlers/joystick_event_transparent_handler.h"

#include "core/input_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/handlers/without_sweep.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::JoystickEvent;

// Kinds of gamepad, as hosts number them.
constexpr int kKindOfLayoutA = 1;
constexpr int kKindOfLayoutB = 2;
constexpr int kKindOfLayoutC = 4;

int asked_device = 0;

int KindOfAskedDevice(int device) {
  asked_device = device;
  return kKindOfLayoutA;
}

class TransparentGamepad : public Story {
 protected:
  void SetUp() override { Load(); }  // an empty keymap, for display 1

  // A gamepad keymap without items that passes everything through.
  void LoadTransparent(int simulate_mode = 0) {
    Settings().joystick_transparent = true;
    Wheel().simulate_mode = simulate_mode;
    LoadJoystick();
  }

  bool Press(const QString& button, int mode = 0) { return Button(JoystickEvent::ButtonPress, button, mode); }
  bool Release(const QString& button, int mode = 0) { return Button(JoystickEvent::ButtonRelease, button, mode); }
  bool Axis(int stick, double x, double y) {
    JoystickAxisEvent event(JoystickEvent::AxisTriggle, x, y, stick, 0);
    return handler_->OnAxis(&event);
  }

  JoystickEventTransparentHandler* handler_ = JoystickEventTransparentHandler::GetInstance();

 private:
  bool Button(QEvent::Type type, const QString& button, int mode) {
    JoystickButtonEvent event(type, button, 0, 7);
    return handler_->HandleButtonEvent(&event, mode);
  }
};

// ---- Names and codes ----

// Empty if a layout has no such button.
const struct ButtonRow {
  int code;
  const char* name_a;
  const char* number_a;
  const char* number_b;
  const char* number_c;
} kButtons[] = {
    {315, "Start", "11", "9", "9"},  // start
    {314, "Back", "10", "8", "8"},   // select
    {317, "LA", "13", "10", "10"},   // left stick pressed
    {318, "RA", "14", "11", "11"},   // right stick pressed
    {310, "LB", "6", "4", "4"},      // left shoulder
    {311, "RB", "7", "5", "5"},      // right shoulder
    {312, "LT", "8", "6", "6"},      // left trigger
    {313, "RT", "9", "7", "7"},      // right trigger
    {304, "A", "0", "1", "1"},       // south
    {305, "B", "1", "2", "0"},       // east
    {307, "X", "3", "0", "3"},       // north
    {308, "Y", "4", "3", "2"},       // west
    {272, "", "", "13", ""},         // touchpad
    {316, "", "", "12", ""},         // home
};

using Names = QMap<QString, int>;

void AddName(Names* names, const char* name, int code) {
  if (*name) names->insert(name, code);
}

TEST_F(TransparentGamepad, EachLayoutHasItsNamesInBothSimulateModesAndNoOthers) {
  Names layout_a;
  Names layout_b;
  Names layout_c;
  for (const ButtonRow& row : kButtons) {
    AddName(&layout_a, row.name_a, row.code);
    AddName(&layout_a, row.number_a, row.code);
    AddName(&layout_b, row.number_b, row.code);
    AddName(&layout_c, row.number_c, row.code);
  }
  QStringList candidates = {"Start", "Back", "LA", "RA", "LB", "RB", "LT", "RT", "A",  "B",    "X",
                            "Y",     "a",    "lt", "",   "00", "-1", " 1", "LS", "RS", "Guide"};
  for (int number = 0; number <= 20; ++number) candidates.append(QString::number(number));

  const struct {
    const char* name;
    int kind;
    const Names* expected;
  } rows[] = {
      {"kind 1 is layout A", 1, &layout_a},          {"kind 2 is layout B", 2, &layout_b},
      {"kind 3 is layout B too", 3, &layout_b},      {"kind 4 is layout C", 4, &layout_c},
      {"kind 0 is layout A", 0, &layout_a},          {"kind 5 is layout A", 5, &layout_a},
      {"a kind below 0 is layout A", -1, &layout_a},
  };
  for (const auto& row : rows) {
    Host().joystick_type = row.kind;
    for (const int mode : {0, 1, 2, -1}) {
      for (const QString& name : candidates) {
        EXPECT_EQ(row.expected->value(name, -1), handler_->LookupCode(0, name, mode))
            << row.name << ", mode " << mode << ", name " << name.toStdString();
      }
    }
  }
}

TEST_F(TransparentGamepad, TheHostIsAskedOfTheEventsDevice) {
  Host().table.GetJoystickType = KindOfAskedDevice;
  Press("A");
  EXPECT_EQ(7, asked_device);
}

TEST_F(TransparentGamepad, WithoutAnAnswerOfTheHostLayoutAHolds) {
  Host().joystick_type = kKindOfLayoutC;
  Host().table.GetJoystickType = nullptr;
  Press("0");  // 305 in layout C
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1");
  handler_->SetCallbacks(nullptr);
  Press("8");  // 314 in layout C
  Press("A");
  EXPECT_WIRE("0ms 1:LTRIGGERAXIS:1", "0ms 1:GPDBUTTON:304:1");
}

// ---- Buttons ----

TEST_F(TransparentGamepad, EachButtonGoesDownAndUpUnderItsCode) {
  for (const ButtonRow& row : kButtons) {
    if (row.code == 312 || row.code == 313 || row.code == 272) continue;  // tested below
    Host().joystick_type = kKindOfLayoutB;
    EXPECT_TRUE(Press(row.number_b));
    EXPECT_TRUE(Release(row.number_b));
    EXPECT_WIRE(QStringLiteral("0ms 1:GPDBUTTON:%1:1").arg(row.code),
                QStringLiteral("0ms 1:GPDBUTTON:%1:0").arg(row.code));
  }
}

TEST_F(TransparentGamepad, TriggersAreAxesOrButtonsBySimulateMode) {
  const struct {
    const char* name;
    int mode;
    const char* button;
    const char* press;
    const char* release;
  } rows[] = {
      {"left, an axis in mode 0", 0, "LT", "0ms 1:LTRIGGERAXIS:1", "0ms 1:LTRIGGERAXIS:0"},
      {"right, an axis in mode 0", 0, "RT", "0ms 1:RTRIGGERAXIS:1", "0ms 1:RTRIGGERAXIS:0"},
      {"left, a button in mode 1", 1, "LT", "0ms 1:GPDBUTTON:312:1", "0ms 1:GPDBUTTON:312:0"},
      {"right, a button in mode 1", 1, "RT", "0ms 1:GPDBUTTON:313:1", "0ms 1:GPDBUTTON:313:0"},
      {"left, an axis in any other mode", 2, "LT", "0ms 1:LTRIGGERAXIS:1", "0ms 1:LTRIGGERAXIS:0"},
      {"right, an axis in any other mode", -1, "RT", "0ms 1:RTRIGGERAXIS:1", "0ms 1:RTRIGGERAXIS:0"},
      {"other buttons do not care", 1, "A", "0ms 1:GPDBUTTON:304:1", "0ms 1:GPDBUTTON:304:0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_TRUE(Press(row.button, row.mode));
    EXPECT_WIRE(row.press);
    EXPECT_TRUE(Release(row.button, row.mode));
    EXPECT_WIRE(row.release);
  }
}

TEST_F(TransparentGamepad, TheTouchpadIsTouchedInItsMiddleAndPressed) {
  Host().joystick_type = kKindOfLayoutB;
  EXPECT_TRUE(Press("13"));
  EXPECT_WIRE("0ms 1:TOUCHPADLIGHTTOUCH:640:360", "0ms 1:TOUCHPADPRESS");
  EXPECT_TRUE(Release("13"));
  EXPECT_WIRE("0ms 1:TOUCHPADRELEASE");
  for (const int mode : {1, 2}) {
    Press("13", mode);
    EXPECT_WIRE("0ms 1:TOUCHPADLIGHTTOUCH:640:360", "0ms 1:TOUCHPADPRESS");
  }
}

// The middle of a touch surface of 720 x 1281, turned: (1 - 0.5) * 720, round(0.5 * 1281).
TEST_F(TransparentGamepad, TheTouchpadsMiddleIsThatOfTheTouchSurface) {
  Host().joystick_type = kKindOfLayoutB;
  Host().touch = QRect(0, 0, 720, 1281);
  Host().rotation = 90;
  Press("13");
  EXPECT_WIRE("0ms 1:TOUCHPADLIGHTTOUCH:360:641", "0ms 1:TOUCHPADPRESS");
}

// ---- The hat ----

TEST_F(TransparentGamepad, ArrowsAreTheHat) {
  const struct {
    const char* name;
    const char* text;
    const char* press;
    const char* release;
  } rows[] = {
      {"up", "\u2191", "0ms 1:HATY:-1", "0ms 1:HATY:0"},
      {"down", "\u2193", "0ms 1:HATY:1", "0ms 1:HATY:0"},
      {"left", "\u2190", "0ms 1:HATX:-1", "0ms 1:HATX:0"},
      {"right", "\u2192", "0ms 1:HATX:1", "0ms 1:HATX:0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    for (const int kind : {kKindOfLayoutA, kKindOfLayoutB, kKindOfLayoutC}) {
      Host().joystick_type = kind;
      for (const int mode : {0, 1}) {
        EXPECT_TRUE(Press(QString::fromUtf8(row.text), mode));
        EXPECT_WIRE(row.press);
        EXPECT_TRUE(Release(QString::fromUtf8(row.text), mode));
        EXPECT_WIRE(row.release);
      }
    }
  }
}

TEST_F(TransparentGamepad, NamesThatTheLayoutDoesNotHaveSayNothingAndAreTaken) {
  for (const char* text : {"", "Z", "15", "Guide", "\u2191\u2191", "\u2191 ", "\u2196", "\u2194", "\u2195"}) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(Press(QString::fromUtf8(text)));
    EXPECT_TRUE(Release(QString::fromUtf8(text)));
    EXPECT_WIRE_NONE();
  }
}

// ---- Sticks ----

TEST_F(TransparentGamepad, SticksAreSentInMillionths) {
  EXPECT_TRUE(Axis(0, 1, -1));
  EXPECT_TRUE(Axis(0, 0, 0));
  EXPECT_TRUE(Axis(1, 0.5, -0.25));
  EXPECT_TRUE(Axis(1, -0.0, -0.0));
  EXPECT_WIRE("0ms 1:LSTICKAXIS:1000000:-1000000", "0ms 1:LSTICKAXIS:0:0", "0ms 1:RSTICKAXIS:500000:-250000",
              "0ms 1:RSTICKAXIS:0:0");
}

TEST_F(TransparentGamepad, AFractionOfAMillionthIsCutOffTowardsZero) {
  Axis(0, 0.1234569, -0.1234569);
  Axis(1, 0.9999999, -0.0000009);
  EXPECT_WIRE("0ms 1:LSTICKAXIS:123456:-123456", "0ms 1:RSTICKAXIS:999999:0");
}

TEST_F(TransparentGamepad, AnyOtherStickIsTheRightOne) {
  EXPECT_TRUE(Axis(2, 1, 0));
  EXPECT_TRUE(Axis(-1, 0, 1));
  EXPECT_WIRE("0ms 1:RSTICKAXIS:1000000:0", "0ms 1:RSTICKAXIS:0:1000000");
}

TEST_F(TransparentGamepad, AStickWithoutAValueRests) {
  Axis(0, qQNaN(), 1);
  EXPECT_WIRE("0ms 1:LSTICKAXIS:0:1000000");
}

// ---- What gets here ----

TEST_F(TransparentGamepad, TakesWhatTheKeymapLeavesOver) {
  Add<ConfigItem>("Click", "Pad A", {0.1, 0.5});
  LoadTransparent();
  Play("joy down A; joy down B; joy up A; joy up B; joy axis 0 0.5,-1; joy axis 1 0,0.25");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:128:360", "0ms 1:GPDBUTTON:305:1", "0ms 1:SLOTRELEASE:11",
              "0ms 1:GPDBUTTON:305:0", "0ms 1:LSTICKAXIS:500000:-1000000", "0ms 1:RSTICKAXIS:0:250000");
}

TEST_F(TransparentGamepad, ASticksItemKeepsItFromTheGuest) {
  Add<tavikeymapmanager::JoystickRightEyeConfigItem>("RightStickEye", "Pad Right_Stick", {0.5, 0.5});
  LoadTransparent();
  Play("joy axis 1 1,0; joy axis 1 0,0");
  EXPECT_WIRE("0ms 1:SLOTPRESS:9:9:1:1:640:360", "0ms 1:SLOTRELEASE:9");
}

TEST_F(TransparentGamepad, IsClosedUnlessTheKeymapOpensIt) {
  LoadJoystick();
  Play("joy down A; joy up A; joy down LT; joy axis 0 1,0; joy axis 1 1,0");
  EXPECT_WIRE_NONE();
}

TEST_F(TransparentGamepad, SimulateModeIsThatOfTheGamepadsKeymap) {
  LoadTransparent(1);
  Play("joy down LT; joy up LT");
  EXPECT_WIRE("0ms 1:GPDBUTTON:312:1", "0ms 1:GPDBUTTON:312:0");
  LoadTransparent(0);
  Play("joy down LT; joy up LT");
  EXPECT_WIRE("0ms 1:LTRIGGERAXIS:1", "0ms 1:LTRIGGERAXIS:0");
}

TEST_F(TransparentGamepad, ButtonsOfMacrosGetHereToo) {
  Host().table.GetJoystickType = KindOfAskedDevice;
  LoadTransparent();
  InputManager::GetInstance()->DispatchVirtualJoystickButton("joystick", "Start", true);
  InputManager::GetInstance()->DispatchVirtualJoystickButton("joystick", "Start", false);
  EXPECT_WIRE("0ms 1:GPDBUTTON:315:1", "0ms 1:GPDBUTTON:315:0");
  EXPECT_EQ(999, asked_device);
}

TEST_F(TransparentGamepad, AForcedTransparentDisplayChangesNothing) {
  Add<ConfigItem>("Click", "Pad A", {0.1, 0.5});
  LoadTransparent();
  Play("transparent 1 on; joy down A; joy up A");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:128:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(TransparentGamepad, EachEventGoesToTheDisplayOfItsMoment) {
  LoadTransparent();
  Play("joy down A; joy axis 0 1,0");
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1", "0ms 1:LSTICKAXIS:1000000:0");
  Play("display 2");
  EXPECT_EQ("", WithoutSweep(TakeWire()));  // what the gamepad holds is not released
  Play("joy up A; joy axis 0 0,0");
  EXPECT_WIRE("0ms 2:GPDBUTTON:304:0", "0ms 2:LSTICKAXIS:0:0");
}

TEST_F(TransparentGamepad, AResetLeavesTheGamepadAlone) {
  LoadTransparent();
  Play("joy down A; joy down LT; joy axis 0 1,0");
  Forget();
  Play("reset full");
  EXPECT_EQ("", WithoutSweep(TakeWire()));
  Play("joy up A; joy up LT; joy axis 0 0,0");
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:0", "0ms 1:LTRIGGERAXIS:0", "0ms 1:LSTICKAXIS:0:0");
}

TEST_F(TransparentGamepad, EventsOfOtherTypesAreLeftOver) {
  JoystickButtonEvent event(QEvent::User, "A", 0, 0);
  EXPECT_FALSE(handler_->HandleButtonEvent(&event, 0));
  EXPECT_WIRE_NONE();
}

// A process without any callbacks: the middle is unknown.
TEST(TransparentGamepadWithoutHost, TheTouchpadIsTouchedAtAPlaceOfItsOwn) {
  static QStringList lines;
  SetInputEventSendFunc(reinterpret_cast<void*>(
      +[](const char* data, int length) { lines.append(QString::fromUtf8(data, length - 1)); }));
  auto* handler = JoystickEventTransparentHandler::GetInstance();
  static tavi::SimulatedHost* host = tavi::SimulatedHost::GetInstance();
  host->joystick_type = kKindOfLayoutB;
  handler->SetCallbacks(&host->table);  // knows the layout; the display has no host
  JoystickButtonEvent event(JoystickEvent::ButtonPress, "13", 0, 0);
  handler->HandleButtonEvent(&event, 0);
  EXPECT_EQ((QStringList{"0:TOUCHPADLIGHTTOUCH:100:100", "0:TOUCHPADPRESS"}), lines);
}

}  // namespace
}  // namespace taviinputmanager
