// The lines that the guest is sent, taken apart.
#ifndef GUEST_LINE_GUEST_LINE_H_
#define GUEST_LINE_GUEST_LINE_H_

#include <string>
#include <string_view>
#include <vector>

#include "guest/line/geometry.h"

namespace taviguest {

struct GuestLine {
  // With the numbers that each carries. Positions are touch coordinates; those of a replay have fractions.
  enum class Kind {
    kUnknown,         // not understood; no numbers
    kSlotPress,       // slot, tracking id, 1, 1, x, y
    kSlotRelease,     // slot
    kSlotReleaseAll,  // none
    kMultiPress,      // slot, tracking id, x, y; again for each contact
    kMultiRelease,    // slot; again for each contact
    kKeyPress,        // guest key code, 1
    kKeyRelease,      // guest key code, 0
    kMouseMove,       // x, y: the place of the pointer, in spite of the line's name
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

  // Whole, and inside what an int holds.
  int Integer(size_t index) const { return static_cast<int>(Bounded(index)); }
  // The position of two numbers, the first at `index`.
  Point PointAt(size_t index) const;
  double Bounded(size_t index) const;

  Kind kind = Kind::kUnknown;
  std::vector<double> numbers;  // finite
  std::string text;
};

// Takes a line without display prefix and line end, valid UTF-8. A line with a field too many, too few, of the wrong
// kind or with another constant than its own is not understood. Texts are taken whole, colons and line ends included.
GuestLine ParseGuestLine(std::string_view line);

// An event line is "<display>:" and then the line itself.
struct AddressedLine {
  int display = 0;
  std::string_view line;
};

// An empty line for a text without display prefix. The result looks into `event`.
AddressedLine SplitDisplay(std::string_view event);

}  // namespace taviguest

#endif  // GUEST_LINE_GUEST_LINE_H_
