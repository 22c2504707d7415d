// Parses the lines that the guest gets with the guest's own parser, for windows and checks that show what a guest does
// with its input.
#ifndef HOST_GUEST_GUEST_LINE_H_
#define HOST_GUEST_GUEST_LINE_H_

#include <QPoint>
#include <QPointF>
#include <QString>
#include <QVector>

#include "guest/line/guest_line.h"
#include "host/guest/rounding.h"

namespace tavi {

// Like taviguest::GuestLine, which documents the numbers of each kind.
struct GuestLine {
  using Kind = taviguest::GuestLine::Kind;

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
