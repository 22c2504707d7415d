// Parses the lines that the guest gets, from the guest's point of view, for windows and checks that show what a guest
// does with its input.
#ifndef HOST_GUEST_GUEST_LINE_H_
#define HOST_GUEST_GUEST_LINE_H_

#include <QPoint>
#include <QPointF>
#include <QString>
#include <QVector>

#include "host/guest/rounding.h"

namespace tavi {

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
  int Integer(int index) const { return static_cast<int>(Bounded(index)); }
  // The position from two numbers, the first at `index`.
  QPoint PointAt(int index) const { return Rounded(QPointF(Bounded(index), Bounded(index + 1))); }
  double Bounded(int index) const { return qBound(-kHighest, numbers.at(index), kHighest); }

  static constexpr double kHighest = 0x7FFFFFFF;

  Kind kind = Kind::kUnknown;
  QVector<double> numbers;  // finite
  QString text;
};

// Parses a line without display prefix and line end. A line with too many or too few fields, with one of the wrong
// kind, or with a wrong constant is not understood. Texts are taken unchanged, colons and line ends included.
GuestLine ParseGuestLine(const QString& line);

// An event line is "<display>:" followed by the line itself.
struct AddressedLine {
  int display = 0;
  QString line;
};

// Returns an empty line for a text line without display prefix.
AddressedLine SplitDisplay(const QString& event);

}  // namespace tavi

#endif  // HOST_GUEST_GUEST_LINE_H_
