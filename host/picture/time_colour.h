#ifndef HOST_PICTURE_TIME_COLOUR_H_
#define HOST_PICTURE_TIME_COLOUR_H_

#include <QString>

namespace tavi {

// From dark blue at the start through red to orange at the end, all dark enough for white paper.
constexpr int kTimeColours = 64;

// The index of a moment's colour. In a record without duration it is the first.
int TimeColourIndex(qint64 ms, qint64 total_ms);

// "#1b2a8c"
QString TimeColour(int index);

}  // namespace tavi

#endif  // HOST_PICTURE_TIME_COLOUR_H_
