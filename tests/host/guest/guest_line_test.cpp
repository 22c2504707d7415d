#include "host/guest/guest_line.h"

#include <gtest/gtest.h>

#include <QVector>

namespace tavi {
namespace {

using Kind = GuestLine::Kind;

struct FormRow {
  const char* name;
  const char* line;
  Kind kind;
  QVector<double> numbers;
};

TEST(GuestLine, UnderstandsEveryFormOfNumbers) {
  const FormRow rows[] = {
      {"a finger", "SLOTPRESS:2:2:1:1:640:360", Kind::kSlotPress, {2, 2, 1, 1, 640, 360}},
      {"a finger of a replay", "SLOTPRESS:18:18:1:1:640.5:1e-05", Kind::kSlotPress, {18, 18, 1, 1, 640.5, 1e-5}},
      {"a replay's pinch", "SLOTMULTIPRESS:18:18:0.5:2", Kind::kMultiPress, {18, 18, 0.5, 2}},
      {"a replay's pointer", "MOUSEMOVE_REL:12.25:3", Kind::kMouseMove, {12.25, 3}},
      {"a replay's wheel", "WHEEL:0.5:360:-0.5:360", Kind::kWheel, {0.5, 360, -0.5, 360}},
      {"a lift", "SLOTRELEASE:25", Kind::kSlotRelease, {25}},
      {"all lifted", "SLOTRELEASEALL", Kind::kSlotReleaseAll, {}},
      {"a pinch", "SLOTMULTIPRESS:10:10:1:2:0:0:3:4", Kind::kMultiPress, {10, 10, 1, 2, 0, 0, 3, 4}},
      {"two of a replay",
       "SLOTMULTIPRESS:18:18:0.5:2:19:19:3:4.25",
       Kind::kMultiPress,
       {18, 18, 0.5, 2, 19, 19, 3, 4.25}},
      {"one of several", "SLOTMULTIPRESS:18:18:5:6", Kind::kMultiPress, {18, 18, 5, 6}},
      {"three at once",
       "SLOTMULTIPRESS:18:18:1:2:19:19:3:4:20:20:5:6",
       Kind::kMultiPress,
       {18, 18, 1, 2, 19, 19, 3, 4, 20, 20, 5, 6}},
      {"a pinch ends", "SLOTMULTIRELEASE:10:0", Kind::kMultiRelease, {10, 0}},
      {"one of several ends", "SLOTMULTIRELEASE:18", Kind::kMultiRelease, {18}},
      {"a key", "KBDPR:30:1", Kind::kKeyPress, {30, 1}},
      {"a key up", "KBDRL:30:0", Kind::kKeyRelease, {30, 0}},
      {"the pointer", "MOUSEMOVE_REL:12:-3", Kind::kMouseMove, {12, -3}},
      {"a wheel", "WHEEL:640:360:-100:0", Kind::kWheel, {640, 360, -100, 0}},
      {"a wheel with places in all fields", "WHEEL:640:360:-640:360", Kind::kWheel, {640, 360, -640, 360}},
      {"a fine wheel", "WHEEL_WITH_DELTA:640:360:12.5:0", Kind::kWheelWithDelta, {640, 360, 12.5, 0}},
      {"a large amount", "WHEEL_WITH_DELTA:640:360:-1e+06:0", Kind::kWheelWithDelta, {640, 360, -1e6, 0}},
      {"the left stick", "LSTICKAXIS:-1000000:500000", Kind::kLeftStick, {-1000000, 500000}},
      {"the right stick", "RSTICKAXIS:0:1", Kind::kRightStick, {0, 1}},
      {"the left trigger", "LTRIGGERAXIS:1", Kind::kLeftTrigger, {1}},
      {"the right trigger", "RTRIGGERAXIS:0", Kind::kRightTrigger, {0}},
      {"a button", "GPDBUTTON:304:1", Kind::kGamepadButton, {304, 1}},
      {"the hat, across", "HATX:-1", Kind::kHatX, {-1}},
      {"the hat, upright", "HATY:1", Kind::kHatY, {1}},
      {"the touchpad", "TOUCHPADLIGHTTOUCH:640:360", Kind::kTouchpadTouch, {640, 360}},
      {"the touchpad pressed", "TOUCHPADPRESS", Kind::kTouchpadPress, {}},
      {"the touchpad released", "TOUCHPADRELEASE", Kind::kTouchpadRelease, {}},
  };
  for (const FormRow& row : rows) {
    SCOPED_TRACE(row.name);
    const GuestLine line = ParseGuestLine(QLatin1String(row.line));
    EXPECT_EQ(line.kind, row.kind);
    EXPECT_EQ(line.numbers, row.numbers);
  }
}

TEST(GuestLine, TakesTextsWhole) {
  const GuestLine text = ParseGuestLine(QStringLiteral("TEXT:a:b\nc"));
  EXPECT_EQ(text.kind, Kind::kText);
  EXPECT_EQ(text.text, QStringLiteral("a:b\nc"));

  const GuestLine nothing = ParseGuestLine(QStringLiteral("TEXT:"));
  EXPECT_EQ(nothing.kind, Kind::kText);
  EXPECT_TRUE(nothing.text.isEmpty());

  const GuestLine control = ParseGuestLine(QStringLiteral("TEXT_CONTROL:ENTER"));
  EXPECT_EQ(control.kind, Kind::kTextControl);
  EXPECT_EQ(control.text, QStringLiteral("ENTER"));
}

TEST(GuestLine, DoesNotUnderstandAnythingElse) {
  const struct {
    const char* name;
    const char* line;
  } rows[] = {
      {"nothing", ""},
      {"a name that is none", "SLOTMOVE:1"},
      {"small letters", "slotrelease:1"},
      {"a field too few", "SLOTPRESS:2:2:1:1:640"},
      {"a field too many", "SLOTPRESS:2:2:1:1:640:360:0"},
      {"no field where one is due", "SLOTRELEASE"},
      {"an empty field", "SLOTRELEASE:"},
      {"a field where none is due", "SLOTRELEASEALL:1"},
      {"a broken number", "KBDPR:3o:1"},
      {"a fraction where a whole number is due", "HATX:0.5"},
      {"a place that is nowhere", "MOUSEMOVE_REL:inf:nan"},
      {"a slot with a fraction", "SLOTPRESS:2.5:2:1:1:640:360"},
      {"a constant that is another", "SLOTPRESS:2:2:1:0:640:360"},
      {"a press that says release", "KBDPR:30:0"},
      {"a release that says press", "KBDRL:30:1"},
      {"half a contact", "SLOTMULTIPRESS:18:18"},
      {"a contact and a half", "SLOTMULTIPRESS:18:18:1:2:19:19"},
      {"no contact", "SLOTMULTIPRESS"},
      {"a text without its colon", "TEXT"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const GuestLine line = ParseGuestLine(QLatin1String(row.line));
    EXPECT_EQ(line.kind, Kind::kUnknown);
    EXPECT_TRUE(line.numbers.isEmpty());
  }
}

// 640.5 is halfway and is rounded up.
TEST(GuestLine, APositionIsTheNearestPoint) {
  EXPECT_EQ(ParseGuestLine(QStringLiteral("SLOTPRESS:2:2:1:1:640.5:360.4")).PointAt(4), QPoint(641, 360));
  EXPECT_EQ(ParseGuestLine(QStringLiteral("MOUSEMOVE_REL:-1.6:3e9")).PointAt(0), QPoint(-2, 2147483647));
}

TEST(GuestLine, AnEventHasItsDisplayInFront) {
  const AddressedLine line = SplitDisplay(QStringLiteral("12:KBDPR:30:1"));
  EXPECT_EQ(line.display, 12);
  EXPECT_EQ(line.line, QStringLiteral("KBDPR:30:1"));
  EXPECT_TRUE(SplitDisplay(QStringLiteral("KBDPR:30:1")).line.isEmpty());
  EXPECT_TRUE(SplitDisplay(QStringLiteral("12")).line.isEmpty());
}

}  // namespace
}  // namespace tavi
