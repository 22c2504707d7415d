#include "guest/line/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "guest/line/decimal.h"
#include "guest/line/utf8.h"

namespace taviguest {

namespace {

constexpr char32_t kMinusSign = 0x2212;
constexpr int kHighestExponent = 1'000'000;  // beyond any double, and far from the limits of an int
constexpr size_t kMostPlainDigits = 9;       // fit an int in any case

bool IsBlank(char32_t character) {
  switch (character) {
    case 0x20:
    case 0x85:
    case 0xA0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000: return true;
    default: return (character >= 0x09 && character <= 0x0D) || (character >= 0x2000 && character <= 0x200A);
  }
}

// The text without surrounding blanks.
std::string_view Trimmed(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character first = FirstCharacter(text);
    if (!IsBlank(first.code)) break;
    text.remove_prefix(first.bytes);
  }
  size_t end = 0;
  for (size_t at = 0; at < text.size();) {
    const Utf8Character character = FirstCharacter(text.substr(at));
    at += character.bytes;
    if (!IsBlank(character.code)) end = at;
  }
  return text.substr(0, end);
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Removes a prefix, and returns whether it was there.
bool Take(std::string_view start, std::string_view* text) {
  if (text->substr(0, start.size()) != start) return false;
  text->remove_prefix(start.size());
  return true;
}

bool TakeMinus(std::string_view* text) {
  if (!text->empty() && FirstCharacter(*text).code == kMinusSign) {
    text->remove_prefix(FirstCharacter(*text).bytes);
    return true;
  }
  return Take("-", text);
}

// Whether the number is negative; a plus sign is allowed.
bool TakeSign(std::string_view* text) {
  if (TakeMinus(text)) return true;
  Take("+", text);
  return false;
}

// Handles nearly every field: just a few digits. It is on the path of each touch, so it skips the general parsing.
std::optional<int> PlainNumber(std::string_view text) {
  if (text.empty() || text.size() > kMostPlainDigits || !std::all_of(text.begin(), text.end(), IsDigit)) return {};
  int number = 0;
  for (const char digit : text) number = number * 10 + (digit - '0');
  return number;
}

std::string TakeDigits(std::string_view* text) {
  size_t count = 0;
  while (count < text->size() && IsDigit((*text)[count])) ++count;
  std::string digits(text->substr(0, count));
  text->remove_prefix(count);
  return digits;
}

// The exponent of a number; 0 if there is none, and nothing for an "e" without a number.
std::optional<int> TakeExponent(std::string_view* text) {
  if (!Take("e", text) && !Take("E", text)) return 0;
  const bool is_negative = TakeSign(text);
  const std::string digits = TakeDigits(text);
  if (digits.empty()) return std::nullopt;
  int exponent = 0;
  for (const char digit : digits) exponent = std::min(exponent * 10 + (digit - '0'), kHighestExponent);
  return is_negative ? -exponent : exponent;
}

}  // namespace

std::optional<int> ReadWholeNumber(std::string_view text) {
  if (const std::optional<int> plain = PlainNumber(text)) return plain;
  text = Trimmed(text);
  const std::string sign = TakeSign(&text) ? "-" : "";
  const std::string plain = sign + TakeDigits(&text);
  if (!text.empty()) return std::nullopt;
  int number = 0;
  const char* end = plain.data() + plain.size();
  const std::from_chars_result result = std::from_chars(plain.data(), end, number);
  return result.ec == std::errc() ? std::optional<int>(number) : std::nullopt;
}

std::optional<double> ReadNumber(std::string_view text) {
  if (const std::optional<int> plain = PlainNumber(text)) return *plain;
  text = Trimmed(text);
  const bool is_negative = TakeSign(&text);
  const std::string whole = TakeDigits(&text);
  const std::string fraction = Take(".", &text) ? TakeDigits(&text) : std::string();
  const std::optional<int> exponent = TakeExponent(&text);
  const std::string digits = whole + fraction;
  if (digits.empty() || !exponent || !text.empty()) return std::nullopt;
  const double number = NearestDouble(digits, *exponent - static_cast<int>(fraction.size()));
  const bool is_lost = number == 0 && digits.find_first_not_of('0') != std::string::npos;
  if (is_lost || std::isinf(number)) return std::nullopt;
  return is_negative ? -number : number;
}

// Rounds away from zero below zero, then back, so that halves go up on both sides.
// NOLINTBEGIN(bugprone-incorrect-roundings): this is how hosts round
int RoundToInt(double number) {
  if (number >= 0) return static_cast<int>(number + 0.5);
  const int below = static_cast<int>(number - 1);
  return static_cast<int>(number - below + 0.5) + below;
}
// NOLINTEND(bugprone-incorrect-roundings)

}  // namespace taviguest
