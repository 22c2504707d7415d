// What an error says in addition to "unknown": the intended name, where a field belongs, the decimal point.
#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

TEST(Hints, NamesOfKeysThatPeopleKnowFromElsewhere) {
  const struct {
    const char* word;
    const char* ours;
  } rows[] = {
      {"Ctrl", "Left Ctrl"},      {"Shift", "Left Shift"},    {"Alt", "Left Alt"},       {"AltGr", "Right Alt"},
      {"LMB", "Mouse Left"},      {"RMB", "Mouse Right"},     {"MMB", "Mouse Middle"},   {"Tilde", "Grave"},
      {"Backtick", "Grave"},      {"Spacebar", "Space"},      {"PgUp", "Page Up"},       {"PgDn", "Page Down"},
      {"Page_Down", "Page Down"}, {"Up Arrow", "Up"},         {"arrow-left", "Left"},    {"Dot", "Period"},
      {"Win", "Left Win"},        {"Cmd", "Left Win"},        {"Scroll Up", "Wheel Up"}, {"Scroll Down", "Wheel Down"},
      {"esc", "Escape"},          {"Mouse 4", "Mouse Side 1"}};
  for (const auto& row : rows) {
    const std::string expected =
        std::string("3:9 error: unknown key '") + row.word + "'; did you mean '" + row.ours + "'?";
    EXPECT_EQ(expected, Said(ReadItems(QByteArray("- {key: ") + row.word + ", type: Click, point: [0.1, 0.1]}\n")));
    EXPECT_TRUE(KeyFromName(QString::fromUtf8(row.ours))) << row.ours;
  }
}

// Similar letters, but another key.
TEST(Hints, AKeyThatMeansSomethingElseIsNotOffered) {
  for (const char* word : {"F25", "Numpad 10", "Mouse Up", "Page Left", "Scroll Left", "Mouse Side 99"}) {
    EXPECT_EQ("", NearestKeyName(QString::fromUtf8(word)).toStdString()) << word;
  }
}

TEST(Hints, AFieldThatBelongsElsewhereIsSentThere) {
  EXPECT_EQ("2:12 error: unknown field 'wheel_zoom' of settings; it belongs under 'wheel'",
            Said(Read("format: 1\nsettings: {wheel_zoom: true}\n")));
  EXPECT_EQ("2:9 error: unknown field 'keyboard_transparent' of wheel; it belongs under 'settings'",
            Said(Read("format: 1\nwheel: {keyboard_transparent: true}\n")));
  EXPECT_EQ("2:1 error: unknown field 'mouse_mode' of a keymap; it belongs under 'settings'",
            Said(Read("format: 1\nmouse_mode: Mouse_No_Transparent\n")));
  EXPECT_EQ("2:12 error: unknown field 'wheel' of settings; it belongs at the top of the file",
            Said(Read("format: 1\nsettings: {wheel: {}}\n")));
  EXPECT_EQ("3:46 error: unknown field 'curve_start' of Click; it belongs to items of type Curve",
            Said(ReadItems("- {key: A, type: Click, point: [0.1, 0.1],   curve_start: [0, 0]}\n")));
  EXPECT_EQ("3:46 error: unknown field 'duration_ms' of Click; it belongs to items of type Wheel and Zoom",
            Said(ReadItems("- {key: A, type: Click, point: [0.1, 0.1],   duration_ms: 100}\n")));
  EXPECT_EQ("3:46 error: unknown field 'key_up' of Click; it belongs to items of other types",
            Said(ReadItems("- {key: A, type: Click, point: [0.1, 0.1],   key_up: W}\n")));
}

TEST(Hints, ADecimalCommaIsToldAsSuch) {
  EXPECT_EQ(
      "3:32 error: 'point': expected [x, y], both from 0 to 1, got four numbers; the decimal separator is a point: "
      "[0.5, 0.25]",
      Said(ReadItems("- {key: A, type: Click, point: [0,5, 0,25]}\n")));
  EXPECT_EQ(
      "3:32 error: 'point': expected [x, y], both from 0 to 1, got three numbers; the decimal separator is a point: "
      "0.5",
      Said(ReadItems("- {key: A, type: Click, point: [0,5, 1]}\n")));
  EXPECT_EQ(
      "4:10 error: 'walk_radius': expected a number from 0.001 to 1, got the text '0,1'; the decimal separator is a "
      "point: 0.1",
      Said(ReadItems("- walk_radius:\n         0,1\n  key: Mouse Right\n  type: RightWalk\n  point: [0.1, 0.1]\n")));
  EXPECT_EQ("3:32 error: 'point': expected [x, y], both from 0 to 1, got a list",
            Said(ReadItems("- {key: A, type: Click, point: [0.5, 0.25, 0.5]}\n")));
}

TEST(Hints, PixelsInPlaceOfFractionsAreToldAsSuch) {
  EXPECT_EQ(
      "3:33 error: 'point': expected a number from 0 to 1, got the number 640; it is a fraction, not pixels\n"
      "3:38 error: 'point': expected a number from 0 to 1, got the number 360; it is a fraction, not pixels",
      Said(ReadItems("- {key: A, type: Click, point: [640, 360]}\n")));
  EXPECT_EQ("3:33 error: 'point': expected a number from 0 to 1, got the number 1.2",
            Said(ReadItems("- {key: A, type: Click, point: [1.2, 0.5]}\n")));
}

TEST(Hints, LongNamesAreShortened) {
  const QByteArray name(60, 'n');
  const std::string shown = std::string(40, 'n') + "...";
  EXPECT_EQ("2:1 error: unknown field '" + shown + "' of a keymap", Said(Read("format: 1\n" + name + ": 1\n")));
  EXPECT_EQ("3:9 error: unknown key '" + shown + "'",
            Said(ReadItems("- {key: " + name + ", type: Click, point: [0.1, 0.1]}\n")));
  EXPECT_EQ("3:44 error: unknown field '" + shown + "' of Click",
            Said(ReadItems("- {key: A, type: Click, point: [0.1, 0.1], " + name + ": 1}\n")));
  EXPECT_EQ("3:45 warning: unknown command '" + shown + "'",
            Said(ReadItems("- {key: A, type: Macro, press_commands:    [" + name + "]}\n")));
}

}  // namespace
}  // namespace tavikeymapmanager
