#ifndef HOST_RECORD_TIME_TEXT_H_
#define HOST_RECORD_TIME_TEXT_H_

#include <QString>

namespace tavi {

// Milliseconds as seconds: "1.250 s".
inline QString SecondsText(double ms) { return QString::number(ms / 1000, 'f', 3) + QStringLiteral(" s"); }

}  // namespace tavi

#endif  // HOST_RECORD_TIME_TEXT_H_
