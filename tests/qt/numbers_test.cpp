// Numbers in texts are read alike on both Qt versions: the expected values are those of Qt 5.15.
#include "qt/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
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

TEST(Numbers, AreReadAsQt5ReadsThem) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    const char* name;
    std::u16string text;
    double number;
    bool is_number;
  } rows[] = {
      {"digits", u"640.5", 640.5, true},
      {"signs", u"-1e+3", -1000, true},
      {"minus zero", u"-0", -0.0, true},
      {"the minus sign of mathematics", u"\u22121.5", -1.5, true},
      {"the same in an exponent", u"15e\u22121", 1.5, true},
      {"blanks around it", u" \u00A01.5\t", 1.5, true},
      {"a blank inside", u"1 .5", 0, false},
      {"a zero character behind", std::u16string(u"1.5\0", 4), 0, false},
      {"groups", u"1,000", 0, false},
      {"too large", u"-1e400", -infinity, false},
      {"too small", u"-1e-400", 0, false},
      {"infinity", u"inf", infinity, true},
      {"infinity below", u"-inf", -infinity, true},
      {"nothing", u"", 0, false},
  };
  for (const auto& row : rows) {
    const QString text = QString::fromStdU16String(row.text);
    bool is_number = !row.is_number;
    const double number = qt::ToDouble(text, &is_number);
    EXPECT_EQ(number, row.number) << row.name;
    EXPECT_EQ(std::signbit(number), std::signbit(row.number)) << row.name;
    EXPECT_EQ(is_number, row.is_number) << row.name;
    EXPECT_EQ(qt::ToDouble(text), row.number) << row.name;
  }
}

// It equals nothing, so it is not in the table.
TEST(Numbers, MayBeNan) {
  bool is_number = false;
  EXPECT_TRUE(std::isnan(qt::ToDouble(u"nan", &is_number)));
  EXPECT_TRUE(is_number);
}

}  // namespace
