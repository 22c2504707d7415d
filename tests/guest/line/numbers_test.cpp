// Hosts use Qt: numbers are read and rounded in the same way, that of Qt 5.15.
#include "guest/line/numbers.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include <QString>

#include "host/guest/rounding.h"
#include "qt/numbers.h"

namespace taviguest {
namespace {

// Both give the same result, to the last bit.
void CompareReading(const std::string& text) {
  SCOPED_TRACE(text);
  const QString text_of_qt = QString::fromStdString(text);
  bool is_whole = false;
  const int whole = qt::ToInt(text_of_qt, &is_whole);
  const std::optional<int> our_whole = ReadWholeNumber(text);
  EXPECT_EQ(our_whole.has_value(), is_whole);
  EXPECT_EQ(our_whole.value_or(0), whole);

  bool is_number = false;
  const double number = qt::ToDouble(text_of_qt, &is_number);
  is_number = is_number && std::isfinite(number);
  const std::optional<double> our_number = ReadNumber(text);
  ASSERT_EQ(our_number.has_value(), is_number);
  if (!is_number) return;
  EXPECT_EQ(*our_number, number);
  EXPECT_EQ(std::signbit(*our_number), std::signbit(number));
}

TEST(Numbers, AreReadAsByQt) {
  for (const char* text : {
           "0",
           "-0",
           "+7",
           "7",
           "007",
           "999999999",  // the last that is read as plain digits
           "000000042",
           "0000000042",
           "1000000000",
           "12x",
           "2147483647",
           "2147483648",
           "-2147483648",
           "-2147483649",
           "99999999999999999999",
           "",
           " ",
           "-",
           "+",
           "+-1",
           "--1",
           "- 1",
           "1 2",
           " 1 ",
           "\t1\n",
           "\v1\f",
           "1\r",
           "0x10",
           "1_000",
           "1,000",
           "1'0",
           "1.",
           ".5",
           ".",
           "-.5",
           "+.5",
           "1.5",
           "1.5.1",
           "1e3",
           "1E3",
           "1e+3",
           "1e-3",
           "1e",
           "1e+",
           "e3",
           ".e3",
           "1.e3",
           "1e3.5",
           "1e 3",
           "1e400",
           "1e-400",
           "-1e400",
           "0e400",
           "0.0e-999999",
           "1e999999999999",
           "1e-999999999999",
           "inf",
           "-inf",
           "nan",
           "infinity",
           "1d",
           "1f",
           "1%",
           "1;",
           "640.5",
           "1e+06",
           "12.5",
           "1e-05",
           "123456",
           "\xC2\xA0"
           "1\xC2\xA0",
           "\xE3\x80\x80"
           "1",
           "1\xE2\x80\x89",
           "\xE2\x88\x92"
           "1",
           "\xE2\x88\x92"
           "1e\xE2\x88\x92"
           "2",
           "\xE2\x88\x92",
           "\xD9\xA1",
           "\xEF\xBC\x91",
           "\xEF\xBF\xBD",
           "\xE2\x80\x8B"
           "1",
           "\xC2\x85"
           "1",
       }) {
    CompareReading(text);
  }
}

// Numbers near the limits of doubles: midpoints of two, the largest, the smallest, the smallest that is not subnormal.
TEST(Numbers, AreReadAsByQtWhereDoublesEnd) {
  for (const char* text : {
           "1.7976931348623157e308",
           "1.7976931348623158e308",
           "1.7976931348623159e308",
           "1.797693134862315808e308",
           "4.9406564584124654e-324",
           "2.4703282292062327e-324",
           "2.4703282292062328e-324",
           "2.5e-324",
           "2e-324",
           "2.2250738585072014e-308",
           "2.2250738585072011e-308",
           "2.2250738585072012e-308",
           "9007199254740993",
           "9007199254740992.5",
           "9007199254740993.0000000000000000000000001",
           "9007199254740991.5",
           "0.5",
           "0.1",
           "0.3",
           "17976931348623158079372897140530341507993413271003782693617377898044496829276475094664901797758720709633028"
           "6416"
           "69288791094655554785194040263065748867150582068190890200070838367627385484581771153176447573027006985557136"
           "6959"
           "622842914819860834936475292719074168444365510704342711559699508093042880",
       }) {
    CompareReading(text);
  }
  // Digits that only matter because they are beyond the midpoint of two doubles.
  CompareReading("9007199254740993." + std::string(2000, '0') + "1");
  CompareReading("9007199254740993." + std::string(2000, '0'));
  CompareReading(std::string(2000, '0') + "1.5");
  CompareReading("0." + std::string(400, '0') + "1e400");
  CompareReading("1" + std::string(400, '0') + "e-400");
}

TEST(Numbers, AreReadAsByQtWhateverComes) {
  std::mt19937 random(1);
  const std::string parts[] = {"0", "1", "5", "9", "99", "12345", "4503599627370496",
                               ".", "e", "E", "-", "+",  " ",     "\xE2\x88\x92"};
  for (int i = 0; i < 40'000; ++i) {
    std::string text;
    for (size_t count = random() % 7; count > 0; --count) text += parts[random() % std::size(parts)];
    CompareReading(text);
    if (HasFailure()) return;
  }
}

TEST(Numbers, EveryDoubleIsReadBack) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 20'000; ++i) {
    const uint64_t bits = random();
    double number = 0;
    static_assert(sizeof(number) == sizeof(bits));
    std::memcpy(&number, &bits, sizeof(number));
    if (!std::isfinite(number)) continue;
    for (const int digits : {6, 17, 40}) CompareReading(QString::number(number, 'g', digits).toStdString());
    if (HasFailure()) return;
  }
}

// By hand, with the sums that Qt 5.15 makes: one of them is rounded itself, just below 0.5.
TEST(Numbers, AreRoundedWithHalvesUp) {
  const struct {
    double number;
    int rounded;
  } rows[] = {
      {0, 0},
      {-0.0, 0},
      {1e-300, 0},
      {-1e-300, 0},
      {0.49999999999999994, 1},
      {-0.49999999999999994, 0},
      {0.5, 1},
      {-0.5, 0},
      {1.4999999999999998, 1},
      {-1.4999999999999998, -1},
      {1.5, 2},
      {-1.5, -1},
      {-1.5000000000000002, -2},
      {2.5, 3},
      {-2.5, -2},
      {640.5, 641},
      {2147483646.4999998, 2147483646},
      {2147483646.5, 2147483647},
      {2147483647, 2147483647},
      {-2147483646.5, -2147483646},
      {-2147483646.5000002, -2147483647},
      {-2147483647, -2147483647},
  };
  for (const auto& row : rows)
    EXPECT_EQ(RoundToInt(row.number), row.rounded) << QString::number(row.number, 'g', 17).toStdString();
}

TEST(Numbers, AreRoundedAsByHosts) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> places(-5000, 5000);
  for (int i = 0; i < 20'000; ++i) {
    const double exact = places(random);
    for (const double number : {exact, std::floor(exact) + 0.5, std::nextafter(std::floor(exact) + 0.5, 0)}) {
      ASSERT_EQ(RoundToInt(number), tavi::Rounded(number)) << number;
    }
  }
}

}  // namespace
}  // namespace taviguest
