// Parses the lines that the guest gets.
#ifndef GUEST_LINE_GUEST_LINE_H_
#define GUEST_LINE_GUEST_LINE_H_

#include <string>
#include <string_view>
#include <vector>

#include "guest/line/geometry.h"

namespace taviguest {

struct GuestLine {
  // With the numbers of each. Positions are touch coordinates; those of a replay have fractions.
  enum class Kind {
    kUnknown,         // not understood; no numbers
    kSlotPress,       // slot, tracking id, 1, 1, x, y
    kSlotRelease,     // slot
    kSlotReleaseAll,  // none
    kMultiPress,      // slot, tracking id, x, y; repeated for each contact
    kMultiRelease,    // slot; repeated for each contact
    kKeyPress,        // guest key code, 1
    kKeyRelease,      // guest key code, 0
    kMouseMove,       // x, y: the absolute position of the pointer, despite the line's name
    kWheel,           // x, y, amount, 0
    kWheelWithDelta,  // x, y, amount with fraction, 0
    kText,            // none; text
    kTextControl,     // none; text: the control's name
    kLeftStick,       // x, y in millionths
    kRightStick,      // x, y in millionths
    kLeftTrigger,     // value
    kRightTrigger,    // value
    kGamepadButton,   // code, value
    kHatX,            // -1 left, 1 right
    kHatY,            // -1 up, 1 down
    kTouchpadTouch,   // x, y
    kTouchpadPress,   // none
    kTouchpadRelease  // none
  };

  // Whole numbers in the range of int.
  int Integer(size_t index) const { return static_cast<int>(Bounded(index)); }
  // The position from two numbers, the first at `index`.
  Point PointAt(size_t index) const;
  double Bounded(size_t index) const;

  Kind kind = Kind::kUnknown;
  std::vector<double> numbers;  // finite
  std::string text;
};

// Parses a line without display prefix and line end, in valid UTF-8. A line with too many or too few fields, with one
// of the wrong kind, or with a wrong constant is not understood. Texts are taken unchanged, colons and line ends
// included.
GuestLine ParseGuestLine(std::string_view line);

// An event line is "<display>:" followed by the line itself.
struct AddressedLine {
  int display = 0;
  std::string_view line;
};

// Returns an empty line for a text line without display prefix. The result refers to the text of `event`.
AddressedLine SplitDisplay(std::string_view event);

}  // namespace taviguest

#endif  // GUEST_LINE_GUEST_LINE_H_
