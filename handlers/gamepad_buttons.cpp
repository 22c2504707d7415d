#include "handlers/gamepad_buttons.h"

namespace taviinputmanager {
namespace {

// Null if a layout has no such button.
struct ButtonRow {
  int code;
  const char* name_a;
  const char* number_a;
  const char* number_b;
  const char* number_c;
};

constexpr ButtonRow kButtons[] = {
    {315, "Start", "11", "9", "9"},
    {314, "Back", "10", "8", "8"},
    {317, "LA", "13", "10", "10"},
    {318, "RA", "14", "11", "11"},
    {310, "LB", "6", "4", "4"},
    {311, "RB", "7", "5", "5"},
    {kLeftTriggerCode, "LT", "8", "6", "6"},
    {kRightTriggerCode, "RT", "9", "7", "7"},
    {304, "A", "0", "1", "1"},
    {305, "B", "1", "2", "0"},
    {307, "X", "3", "0", "3"},
    {308, "Y", "4", "3", "2"},
    {kTouchpadCode, nullptr, nullptr, "13", nullptr},
    {316, nullptr, nullptr, "12", nullptr},  // home
};

const char* NumberOf(const ButtonRow& row, ButtonLayout layout) {
  switch (layout) {
    case ButtonLayout::kB: return row.number_b;
    case ButtonLayout::kC: return row.number_c;
    default: return row.number_a;
  }
}

}  // namespace

ButtonMap MakeButtonMap(ButtonLayout layout) {
  ButtonMap map;
  for (const ButtonRow& row : kButtons) {
    if (const char* number = NumberOf(row, layout)) map.insert(QLatin1String(number), row.code);
    if (layout == ButtonLayout::kA && row.name_a) map.insert(QLatin1String(row.name_a), row.code);
  }
  return map;
}

}  // namespace taviinputmanager
