// The lines that the guest is sent, taken apart by the guest's own reader of them, for windows and checks that show
// what a guest would make of its input.
#ifndef HOST_GUEST_GUEST_LINE_H_
#define HOST_GUEST_GUEST_LINE_H_

#include <QPoint>
#include <QPointF>
#include <QString>
#include <QVector>

#include "guest/line/guest_line.h"
#include "host/guest/rounding.h"

namespace tavi {

// As taviguest::GuestLine, which says what each kind carries.
struct GuestLine {
  using Kind = taviguest::GuestLine::Kind;

  // Whole, and inside what an int holds.
  int Integer(int index) const { return static_cast<int>(Bounded(index)); }
  // The position of two numbers, the first at `index`.
  QPoint PointAt(int index) const { return Rounded(QPointF(Bounded(index), Bounded(index + 1))); }
  double Bounded(int index) const { return qBound(-kHighest, numbers.at(index), kHighest); }

  static constexpr double kHighest = 0x7FFFFFFF;

  Kind kind = Kind::kUnknown;
  QVector<double> numbers;  // finite
  QString text;
};

// Takes a line without display prefix and line end. A line with a field too many, too few, of the wrong kind or with
// another constant than its own is not understood. Texts are taken whole, colons and line ends included.
GuestLine ParseGuestLine(const QString& line);

// An event line is "<display>:" and then the line itself.
struct AddressedLine {
  int display = 0;
  QString line;
};

// An empty line for a text without display prefix.
AddressedLine SplitDisplay(const QString& event);

}  // namespace tavi

#endif  // HOST_GUEST_GUEST_LINE_H_
