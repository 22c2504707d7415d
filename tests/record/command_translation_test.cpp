// Converts guest lines to actions.
#include "record/command_translation.h"

#include <gtest/gtest.h>

#include <QRect>

#include "core/guest_command.h"
#include "record/record_action.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

// "type data extra1 extra2" with bars, or "nothing".
std::string Action(bool translated, const RecordAction& action) {
  if (!translated) return "nothing";
  EXPECT_EQ(0, action.timing);
  return QStringList{action.type, action.data, action.extra1, action.extra2}.join('|').toStdString();
}
std::string Event(const QString& command) {
  RecordAction action;
  const bool translated = TranslateEventCommand(command, &action);
  return Action(translated, action);
}
std::string TextOf(const QString& command) {
  RecordAction action;
  const bool translated = TranslateTextCommand(command, &action);
  return Action(translated, action);
}

// On the default display of 1280 x 720.
TEST(CommandTranslation, EveryEventLine) {
  const struct {
    const char* name;
    const char* command;
    const char* action;
  } rows[] = {
      {"press", "SLOTPRESS:2:2:1:1:640:360", "touch|press_rel:(0.5,0.5)|2|"},
      {"press: positions 5 and 6 are the point, 1 is the slot", "SLOTPRESS:25:7:8:9:320:540",
       "touch|press_rel:(0.25,0.75)|25|"},
      {"press: outside", "SLOTPRESS:2:2:1:1:-128:1440", "touch|press_rel:(-0.1,2)|2|"},
      {"press: six digits", "SLOTPRESS:2:2:1:1:1:1", "touch|press_rel:(0.00078125,0.00138889)|2|"},
      {"press: a slot is converted to an int", "SLOTPRESS:+07:2:1:1:0:0", "touch|press_rel:(0,0)|7|"},
      {"press: a slot that is no number is 0", "SLOTPRESS:x:2:1:1:0:0", "touch|press_rel:(0,0)|0|"},
      {"press: coordinates with fractions are no ints", "SLOTPRESS:2:2:1:1:640.5:360", "touch|press_rel:(0,0.5)|2|"},
      {"press: empty parts count", "SLOTPRESS::::::", "touch|press_rel:(0,0)|0|"},
      {"press: 6 parts", "SLOTPRESS:2:2:1:1:640", "nothing"},
      {"press: 8 parts", "SLOTPRESS:2:2:1:1:640:360:0", "nothing"},
      {"press: a part after the last colon", "SLOTPRESS:2:2:1:1:640:360:", "nothing"},
      {"press: the word alone", "SLOTPRESS", "nothing"},

      {"release", "SLOTRELEASE:2", "touch|release|2|"},
      {"release: through an int", "SLOTRELEASE:007", "touch|release|7|"},
      {"release: empty", "SLOTRELEASE:", "touch|release|0|"},
      {"release: 3 parts", "SLOTRELEASE:2:3", "nothing"},
      {"release: the word alone", "SLOTRELEASE", "nothing"},

      {"key press", "KBDPR:30:1", "keyboard|keyboard_press:30||"},
      {"key press: as it stands", "KBDPR:+0x1e:7", "keyboard|keyboard_press:+0x1e||"},
      {"key press: 2 parts", "KBDPR:30", "nothing"},
      {"key press: 4 parts", "KBDPR:30:1:1", "nothing"},
      {"key release", "KBDRL:30:0", "keyboard|keyboard_release:30||"},
      {"key release: empty code", "KBDRL::0", "keyboard|keyboard_release:||"},
      {"key release: 2 parts", "KBDRL:30", "nothing"},

      {"press of one", "SLOTMULTIPRESS:18:18:320:180", "touch|press_multi_rel:(0.25,0.25)|18|"},
      {"press of two: no colon in front", "SLOTMULTIPRESS:18:18:320:180:19:19:960:540",
       "touch|press_multi_rel:(0.25,0.25):(0.75,0.75)|18:19|"},
      {"press of several: the second id is not kept", "SLOTMULTIPRESS:18:5:320:180",
       "touch|press_multi_rel:(0.25,0.25)|18|"},
      {"press of several: ids through ints", "SLOTMULTIPRESS:018:x:0:0:y:19:0:0",
       "touch|press_multi_rel:(0,0):(0,0)|18:0|"},
      {"press of several: 3 parts", "SLOTMULTIPRESS:18:18:320", "nothing"},
      {"press of several: 5 parts", "SLOTMULTIPRESS:18:18:320:180:19", "nothing"},
      {"press of none", "SLOTMULTIPRESS", "nothing"},
      {"press of several: 1 part", "SLOTMULTIPRESS:", "nothing"},
      {"press of several: the word needs no colon", "SLOTMULTIPRESSED:18:18:320:180",
       "touch|press_multi_rel:(0.25,0.25)|18|"},

      {"release of several", "SLOTMULTIRELEASE:18:19", "touch|release_multi|18:19|"},
      {"release of several: as it stands", "SLOTMULTIRELEASE:x::7", "touch|release_multi|x::7|"},
      {"release of several: any character is cut", "SLOTMULTIRELEASE;18", "touch|release_multi|18|"},
      {"release of several: without ids", "SLOTMULTIRELEASE:", "touch|release_multi||"},
      {"release of several: the word alone", "SLOTMULTIRELEASE", "nothing"},

      {"wheel", "WHEEL:1:2:64:-36", "mouse|wheel:(0.05,-0.05)||"},
      {"wheel: 4 parts", "WHEEL:1:2:64", "nothing"},
      {"wheel: 6 parts", "WHEEL:1:2:64:-36:0", "nothing"},
      {"wheel with delta", "WHEEL_WITH_DELTA:640:360:0:120", "nothing"},
      {"move", "MOUSEMOVE_REL:640:180", "mouse|move:(0.5,0.25)||"},
      {"move: 2 parts", "MOUSEMOVE_REL:640", "nothing"},
      {"move: 4 parts", "MOUSEMOVE_REL:640:180:0", "nothing"},

      {"release of all", "SLOTRELEASEALL", "touch|reset||"},
      {"release of all and more", "SLOTRELEASEALL:", "nothing"},

      {"gamepad button", "GPDBUTTON:0:1:1", "joystick|GPDBUTTON:0:1:1||"},
      {"left stick", "LSTICKAXIS:0:0.5:-1", "joystick|LSTICKAXIS:0:0.5:-1||"},
      {"right stick", "RSTICKAXIS:0:0.5:-1", "joystick|RSTICKAXIS:0:0.5:-1||"},
      {"left trigger", "LTRIGGERAXIS:0:0.5", "joystick|LTRIGGERAXIS:0:0.5||"},
      {"right trigger", "RTRIGGERAXIS:0:0.5", "joystick|RTRIGGERAXIS:0:0.5||"},
      {"gamepad lines need no parts", "GPDBUTTON:", "joystick|GPDBUTTON:||"},
      {"gamepad word alone", "GPDBUTTON", "nothing"},

      {"hat", "HATX:0:1", "nothing"},
      {"touchpad", "TOUCHPADPRESS:0", "nothing"},
      {"text", "TEXT:abc", "nothing"},
      {"small letters", "kbdpr:30:1", "nothing"},
      {"a blank in front", " KBDPR:30:1", "nothing"},
      {"nothing at all", "", "nothing"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.action, Event(row.command)) << row.name;
}

// From a line of guest_command, and from its text.
void ExpectSameAction(const LineBuffer& line) {
  RecordAction action;
  const bool is_translated = TranslateEventLine(line.WithoutEnd(), &action);
  EXPECT_EQ(Event(line.ToString().chopped(1)), Action(is_translated, action)) << line.toStdString();
}

TEST(CommandTranslation, ALineAndItsTextAreTheSameAction) {
  namespace gc = guest_command;
  for (const int number : {0, 1, -1, 7, 25, 26, 640, 1000000, 2147483647, -2147483647 - 1}) {
    for (const LineBuffer& line :
         {gc::SlotPress(number, 640, number), gc::SlotPress(2, number, 360), gc::SlotRelease(number),
          gc::SlotMultiPress({{number, 320, 180}, {19, number, 540}}), gc::SlotMultiRelease({number, 19}),
          gc::KeyPress(number), gc::KeyRelease(number), gc::MouseMove(number, 180), gc::Wheel(1, 2, number, -36),
          gc::WheelWithDelta(number, 2, 0.5), gc::LeftStickAxis(number, 2), gc::RightStickAxis(1, number),
          gc::LeftTriggerAxis(number), gc::RightTriggerAxis(number), gc::GamepadButton(number, 1), gc::HatX(number),
          gc::HatY(number), gc::TouchpadLightTouch(number, 2)}) {
      ExpectSameAction(line);
    }
  }
  // Numbers that are not ints are 0 in a record, except those that look like one.
  for (const double number : {0.0, -0.0, 0.5, -1.5, 640.0, 123456.0, 1234567.0, 1e-7, 1e300}) {
    const QPointF place(number, 360);
    for (const LineBuffer& line : {gc::SlotPress(2, place), gc::MouseMove(place), gc::Wheel(place)}) {
      ExpectSameAction(line);
    }
  }
  for (const LineBuffer& line : {gc::SlotReleaseAll(), gc::SlotMultiPress({}), gc::SlotMultiRelease({}),
                                 gc::TouchpadPress(), gc::TouchpadRelease()}) {
    ExpectSameAction(line);
  }
}

// Texts are shared, so they must be identified by everything: the word, either number, and their order.
TEST(CommandTranslation, AShareOfATextIsTheSameText) {
  EXPECT_EQ("touch|press_rel:(0.5,0.25)|2|", Event("SLOTPRESS:2:2:1:1:640:180"));
  EXPECT_EQ("mouse|move:(0.5,0.25)||", Event("MOUSEMOVE_REL:640:180"));
  EXPECT_EQ("mouse|wheel:(0.5,0.25)||", Event("WHEEL:1:2:640:180"));
  for (int x = 0; x <= 1280; x += 40) {
    for (int y = 0; y <= 720; y += 45) {
      const QString point = QStringLiteral("(%1,%2)").arg(x / 1280.0).arg(y / 720.0);
      EXPECT_EQ("mouse|move:" + point.toStdString() + "||", Event(QStringLiteral("MOUSEMOVE_REL:%1:%2").arg(x).arg(y)));
      EXPECT_EQ("touch|press_rel:" + point.toStdString() + "|2|",
                Event(QStringLiteral("SLOTPRESS:2:2:1:1:%1:%2").arg(x).arg(y)));
    }
  }
}

TEST(CommandTranslation, EveryTextLine) {
  const struct {
    const char* name;
    const char* command;
    const char* action;
  } rows[] = {
      {"text", "TEXT:abc", "input_method|text_inject:abc||"},
      {"text with colons and blanks", "TEXT: a:b:", "input_method|text_inject: a:b:||"},
      {"text of any script", "TEXT:\xe4\xbd\xa0", "input_method|text_inject:\xe4\xbd\xa0||"},
      {"empty text", "TEXT:", "nothing"},
      {"the word alone", "TEXT", "nothing"},
      {"control", "TEXT_CONTROL:28", "input_method|text_control:28||"},
      {"empty control", "TEXT_CONTROL:", "nothing"},
      {"another word", "TEXTS:abc", "nothing"},
      {"an event line", "KBDPR:30:1", "nothing"},
      {"nothing at all", "", "nothing"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.action, TextOf(QString::fromUtf8(row.command))) << row.name;
}

class DisplayTranslation : public Story {};

TEST_F(DisplayTranslation, FractionsAreOfTheDisplayOfTheMoment) {
  Host().display = QRect(10, 20, 1920, 1080);
  EXPECT_EQ("touch|press_rel:(0.5,0.5)|2|", Event("SLOTPRESS:2:2:1:1:960:540")) << "its place does not matter";
  EXPECT_EQ("mouse|move:(0.333333,1)||", Event("MOUSEMOVE_REL:640:1080"));
}

TEST_F(DisplayTranslation, ADisplayWithoutSizeHasNoPoints) {
  Host().display = QRect();
  EXPECT_EQ("nothing", Event("SLOTPRESS:2:2:1:1:960:540"));
  EXPECT_EQ("nothing", Event("SLOTMULTIPRESS:2:2:960:540"));
  EXPECT_EQ("nothing", Event("MOUSEMOVE_REL:0:0"));
  EXPECT_EQ("nothing", Event("WHEEL:1:2:3:4"));
  EXPECT_EQ("touch|release|2|", Event("SLOTRELEASE:2"));
}

// One side is enough: a display with a width of 0 has no fractions, whatever its height.
TEST_F(DisplayTranslation, ADisplayOfOneSideHasNoPoints) {
  for (const QRect& display : {QRect(0, 0, 0, 720), QRect(0, 0, 1280, 0)}) {
    Host().display = display;
    EXPECT_EQ("nothing", Event("SLOTPRESS:2:2:1:1:960:540"));
    EXPECT_EQ("nothing", Event("WHEEL:1:2:3:4"));
  }
}

}  // namespace
}  // namespace taviinputmanager
