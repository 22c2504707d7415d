// A point as record files hold it: "(0.25,0.5)".
#ifndef RECORD_POINT_TEXT_H_
#define RECORD_POINT_TEXT_H_

class QPointF;
class QString;

namespace taviinputmanager {

class LineBuffer;

// Fractions of the display (of the host's window in captured macros), six significant digits, no blanks.
QString WritePoint(const QPointF& point);
// The same, behind what stands in `text`.
void WritePoint(const QPointF& point, LineBuffer* text);

// What is no point, or none of two numbers, gives the null point. A number that cannot be read is 0.
QPointF ReadPoint(const QString& text);

}  // namespace taviinputmanager

#endif  // RECORD_POINT_TEXT_H_
