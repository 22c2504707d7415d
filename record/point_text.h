// A point in the format of record files: "(0.25,0.5)".
#ifndef RECORD_POINT_TEXT_H_
#define RECORD_POINT_TEXT_H_

class QPointF;
class QString;

namespace taviinputmanager {

class LineBuffer;

// Fractions of the display (of the host's window in captured macros), six significant digits, no blanks.
QString WritePoint(const QPointF& point);
// Appends it to `text`.
void WritePoint(const QPointF& point, LineBuffer* text);

// Text that is not a point of two numbers gives the null point. A number that cannot be parsed is 0.
QPointF ReadPoint(const QString& text);

}  // namespace taviinputmanager

#endif  // RECORD_POINT_TEXT_H_
