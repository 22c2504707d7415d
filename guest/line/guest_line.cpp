#include "guest/line/guest_line.h"

#include <algorithm>
#include <optional>

#include "guest/line/numbers.h"

namespace taviguest {

using Kind = GuestLine::Kind;

namespace {

constexpr double kHighest = 0x7FFFFFFF;

// The fields after a line's name: "i" a whole number, "d" a number, "0" and "1" these numbers themselves, "t" a text to
// the end of the line, "+" for "the fields before it, any number of times".
struct LineForm {
  std::string_view name;
  Kind kind;
  std::string_view fields;
};

constexpr LineForm kForms[] = {
    {"SLOTPRESS", Kind::kSlotPress, "ii11dd"},
    {"SLOTRELEASE", Kind::kSlotRelease, "i"},
    {"SLOTRELEASEALL", Kind::kSlotReleaseAll, ""},
    {"SLOTMULTIPRESS", Kind::kMultiPress, "iidd+"},
    {"SLOTMULTIRELEASE", Kind::kMultiRelease, "i+"},
    {"KBDPR", Kind::kKeyPress, "i1"},
    {"KBDRL", Kind::kKeyRelease, "i0"},
    {"MOUSEMOVE_REL", Kind::kMouseMove, "dd"},
    {"WHEEL", Kind::kWheel, "dddd"},
    {"WHEEL_WITH_DELTA", Kind::kWheelWithDelta, "iid0"},
    {"TEXT", Kind::kText, "t"},
    {"TEXT_CONTROL", Kind::kTextControl, "t"},
    {"LSTICKAXIS", Kind::kLeftStick, "ii"},
    {"RSTICKAXIS", Kind::kRightStick, "ii"},
    {"LTRIGGERAXIS", Kind::kLeftTrigger, "i"},
    {"RTRIGGERAXIS", Kind::kRightTrigger, "i"},
    {"GPDBUTTON", Kind::kGamepadButton, "ii"},
    {"HATX", Kind::kHatX, "i"},
    {"HATY", Kind::kHatY, "i"},
    {"TOUCHPADLIGHTTOUCH", Kind::kTouchpadTouch, "ii"},
    {"TOUCHPADPRESS", Kind::kTouchpadPress, ""},
    {"TOUCHPADRELEASE", Kind::kTouchpadRelease, ""},
};

const LineForm* FindForm(std::string_view name) {
  for (const LineForm& form : kForms) {
    if (name == form.name) return &form;
  }
  return nullptr;
}

bool ReadField(std::string_view field, char kind, std::vector<double>* numbers) {
  const std::optional<double> number = kind == 'd' ? ReadNumber(field) : std::optional<double>(ReadWholeNumber(field));
  if (!number) return false;
  numbers->push_back(*number);
  const bool is_constant = kind == '0' || kind == '1';
  return !is_constant || *number == kind - '0';
}

// `kinds` is not empty.
bool ReadFields(std::string_view rest, std::string_view kinds, std::vector<double>* numbers) {
  const bool is_repeated = kinds.back() == '+';
  if (is_repeated) kinds.remove_suffix(1);
  numbers->reserve(kinds.size());
  for (bool is_more = true; is_more;) {
    if (numbers->size() == kinds.size() && !is_repeated) return false;
    const size_t colon = rest.find(':');
    if (!ReadField(rest.substr(0, colon), kinds[numbers->size() % kinds.size()], numbers)) return false;
    is_more = colon != std::string_view::npos;
    if (is_more) rest.remove_prefix(colon + 1);
  }
  return numbers->size() % kinds.size() == 0;
}

}  // namespace

double GuestLine::Bounded(size_t index) const { return std::clamp(numbers[index], -kHighest, kHighest); }

Point GuestLine::PointAt(size_t index) const { return {RoundToInt(Bounded(index)), RoundToInt(Bounded(index + 1))}; }

GuestLine ParseGuestLine(std::string_view line) {
  const size_t colon = line.find(':');
  const bool has_fields = colon != std::string_view::npos;
  const LineForm* form = FindForm(line.substr(0, colon));
  if (!form) return {};
  GuestLine result;
  const std::string_view rest = has_fields ? line.substr(colon + 1) : std::string_view();
  if (form->fields == "t") {
    if (!has_fields) return {};
    result.text = rest;
  } else {
    if (has_fields == form->fields.empty()) return {};
    if (has_fields && !ReadFields(rest, form->fields, &result.numbers)) return {};
  }
  result.kind = form->kind;
  return result;
}

AddressedLine SplitDisplay(std::string_view event) {
  const size_t colon = event.find(':');
  const std::optional<int> display = ReadWholeNumber(event.substr(0, colon));
  if (colon == std::string_view::npos || !display) return {};
  return {*display, event.substr(colon + 1)};
}

}  // namespace taviguest
