#ifndef HOST_PICTURE_TIME_COLOUR_H_
#define HOST_PICTURE_TIME_COLOUR_H_

#include <QString>

namespace tavi {

// From dark blue at the start over red to orange at the end, all of them dark enough for white paper.
constexpr int kTimeColours = 64;

// Which of the colours a moment has; the last one in a record that takes no time at all is the first.
int TimeColourIndex(qint64 ms, qint64 total_ms);

// "#1b2a8c"
QString TimeColour(int index);

}  // namespace tavi

#endif  // HOST_PICTURE_TIME_COLOUR_H_
