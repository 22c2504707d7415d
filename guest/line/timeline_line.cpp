#include "guest/line/timeline_line.h"

#include "guest/line/numbers.h"

namespace taviguest {

namespace {

constexpr std::string_view kUnit = "ms ";
constexpr std::string_view kCallMark = "! ";
constexpr std::string_view kTextMark = "text ";
constexpr size_t kMostDigits = 9;

bool Take(std::string_view start, std::string_view* text) {
  if (text->substr(0, start.size()) != start) return false;
  text->remove_prefix(start.size());
  return true;
}

}  // namespace

std::optional<TimedLine> ReadTimelineLine(std::string_view line) {
  const size_t digits = line.find_first_not_of("0123456789");
  if (digits == 0 || digits == std::string_view::npos || digits > kMostDigits) return std::nullopt;
  TimedLine result;
  result.ms = *ReadWholeNumber(line.substr(0, digits));
  line.remove_prefix(digits);
  if (!Take(kUnit, &line)) return std::nullopt;
  result.is_call = Take(kCallMark, &line);
  result.sent.is_text = !result.is_call && Take(kTextMark, &line);
  result.sent.line = line;
  return result;
}

}  // namespace taviguest
