// Integers in texts are read alike on both Qt versions: the expected values are those of Qt 5.15.
#include "qt/numbers.h"

#include <gtest/gtest.h>
#include <string>

#include <QString>

namespace {

struct Row {
  const char* name;
  std::u16string text;
  int number;
  bool is_number;
};

class WholeNumbers : public testing::TestWithParam<Row> {};

TEST_P(WholeNumbers, AreReadAsQt5ReadsThem) {
  const QString text = QString::fromStdU16String(GetParam().text);
  bool is_number = !GetParam().is_number;
  EXPECT_EQ(qt::ToInt(text, &is_number), GetParam().number) << GetParam().name;
  EXPECT_EQ(is_number, GetParam().is_number) << GetParam().name;
  EXPECT_EQ(qt::ToInt(text), GetParam().number) << GetParam().name;
}

const Row kRows[] = {
    {"digits", u"1920", 1920, true},
    {"a sign", u"-7", -7, true},
    {"the other sign", u"+7", 7, true},
    {"zeros in front", u"007", 7, true},
    {"the largest", u"2147483647", 2147483647, true},
    {"one more", u"2147483648", 0, false},
    {"the least", u"-2147483648", -2147483647 - 1, true},
    {"one less", u"-2147483649", 0, false},
    {"nothing", u"", 0, false},
    {"a sign alone", u"-", 0, false},
    {"blanks around it", u" \t12\n", 12, true},
    {"a blank inside", u"1 2", 0, false},
    {"a blank that does not break, behind", u"12\u00A0", 12, true},
    {"a wide blank in front", u"\u200312", 12, true},
    {"the minus sign of mathematics", u"\u221212", -12, true},
    {"digits of another script", u"\u0661\u0662", 0, false},
    {"wide digits", u"\uFF11", 0, false},
    {"a zero character behind", std::u16string(u"12\0", 3), 0, false},
    {"a zero character inside", std::u16string(u"1\0002", 3), 0, false},
    {"half of a pair behind", u"1\xD835", 0, false},
    {"groups", u"1,000", 0, false},
    {"a point", u"1.0", 0, false},
    {"an exponent", u"1e3", 0, false},
    {"another base", u"0x10", 0, false},
};

INSTANTIATE_TEST_SUITE_P(Rows, WholeNumbers, testing::ValuesIn(kRows));

}  // namespace
