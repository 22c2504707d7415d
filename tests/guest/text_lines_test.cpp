// Texts, typed on a US keyboard.
#include <map>

#include "guest/translation/typed_keys.h"
#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

class TextLines : public PlayedLines {};

TEST_F(TextLines, ACharacterIsAClick) {
  EXPECT_EQ(Play("TEXT:a"), (Texts{
                                "keyboard EV_KEY KEY_A 1",
                                "keyboard EV_SYN SYN_REPORT 0",
                                "keyboard EV_KEY KEY_A 0",
                                "keyboard EV_SYN SYN_REPORT 0",
                            }));
}

TEST_F(TextLines, ShiftIsHeldWhereItIsNeeded) {
  EXPECT_EQ(Play("TEXT:!"), (Texts{
                                "keyboard EV_KEY KEY_LEFTSHIFT 1",
                                "keyboard EV_SYN SYN_REPORT 0",
                                "keyboard EV_KEY KEY_1 1",
                                "keyboard EV_SYN SYN_REPORT 0",
                                "keyboard EV_KEY KEY_1 0",
                                "keyboard EV_SYN SYN_REPORT 0",
                                "keyboard EV_KEY KEY_LEFTSHIFT 0",
                                "keyboard EV_SYN SYN_REPORT 0",
                            }));
}

TEST_F(TextLines, ATextIsTypedInOrderColonsIncluded) {
  const Texts events = Play("TEXT:b:\n");
  ASSERT_EQ(events.size(), 16u);  // four, eight with Shift, four
  EXPECT_EQ(events[0], "keyboard EV_KEY KEY_B 1");
  EXPECT_EQ(events[6], "keyboard EV_KEY KEY_SEMICOLON 1");
  EXPECT_EQ(events[12], "keyboard EV_KEY KEY_ENTER 1");
}

TEST_F(TextLines, AnEmptyTextTypesNothing) { EXPECT_EQ(Play("TEXT:"), Texts{}); }

// Ctrl+C reaches a text field as the character 3.
TEST_F(TextLines, AControlCharacterIsItsLetterWithControl) {
  EXPECT_EQ(Play("TEXT:\x03"), (Texts{
                                   "keyboard EV_KEY KEY_LEFTCTRL 1",
                                   "keyboard EV_SYN SYN_REPORT 0",
                                   "keyboard EV_KEY KEY_C 1",
                                   "keyboard EV_SYN SYN_REPORT 0",
                                   "keyboard EV_KEY KEY_C 0",
                                   "keyboard EV_SYN SYN_REPORT 0",
                                   "keyboard EV_KEY KEY_LEFTCTRL 0",
                                   "keyboard EV_SYN SYN_REPORT 0",
                               }));
}

TEST_F(TextLines, WhatNoKeyTypesIsToldAndTheRestTyped) {
  const Translation translation =
      translator_.Translate(ParseGuestLine("TEXT:\xC3\xA9"
                                           "a\xF0\x9F\x98\x80"));
  EXPECT_EQ(translation.problem, "no key types U+00E9, U+1F600");
  EXPECT_EQ(TextsOf(translation.events).at(0), "keyboard EV_KEY KEY_A 1");
  EXPECT_EQ(translation.events.size(), 4u);
}

TEST_F(TextLines, ControlsAreKeys) {
  EXPECT_EQ(Play("TEXT_CONTROL:ENTER"), (Texts{
                                            "keyboard EV_KEY KEY_ENTER 1",
                                            "keyboard EV_SYN SYN_REPORT 0",
                                            "keyboard EV_KEY KEY_ENTER 0",
                                            "keyboard EV_SYN SYN_REPORT 0",
                                        }));
  EXPECT_EQ(Play("TEXT_CONTROL:BACKSPACE").at(0), "keyboard EV_KEY KEY_BACKSPACE 1");
  EXPECT_EQ(ProblemOf("TEXT_CONTROL:TAB"), "there is no such control");
}

TEST(TypedKeys, EveryPrintableCharacterHasAKeyOfItsOwn) {
  std::map<std::pair<int, int>, char32_t> seen;
  for (char32_t character = 0x20; character < 0x7F; ++character) {
    const auto key = KeyThatTypes(character);
    ASSERT_TRUE(key.has_value()) << static_cast<unsigned>(character);
    EXPECT_TRUE(seen.emplace(std::make_pair(key->code, key->modifier), character).second)
        << static_cast<unsigned>(character);
  }
}

// 42 is the left Shift, 29 the left Control.
TEST(TypedKeys, KeysStandWhereTheUsLayoutHasThem) {
  const struct {
    char32_t character;
    int code;
    int modifier;
  } rows[] = {
      {'q', 16, 0},  {'Q', 16, 42}, {'0', 11, 0},  {')', 11, 42},  {'~', 41, 42}, {'\\', 43, 0}, {'|', 43, 42},
      {'"', 40, 42}, {'<', 51, 42}, {'/', 53, 0},  {'?', 53, 42},  {'_', 12, 42}, {' ', 57, 0},  {'\t', 15, 0},
      {'\n', 28, 0}, {'\r', 28, 0}, {'\b', 14, 0}, {0x7F, 111, 0}, {1, 30, 29},   {26, 44, 29},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(static_cast<unsigned>(row.character));
    const auto key = KeyThatTypes(row.character);
    ASSERT_TRUE(key.has_value());
    EXPECT_EQ(key->code, row.code);
    EXPECT_EQ(key->modifier, row.modifier);
  }
}

TEST(TypedKeys, NothingElseHasAKey) {
  for (const char32_t character : {U'\0', U'\x1B', U'\x1F', U'\x80', U'\u00E9', U'\U0001F600'}) {
    EXPECT_FALSE(KeyThatTypes(character).has_value()) << static_cast<unsigned>(character);
  }
}

}  // namespace
}  // namespace taviguest
