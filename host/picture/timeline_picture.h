#ifndef HOST_PICTURE_TIMELINE_PICTURE_H_
#define HOST_PICTURE_TIMELINE_PICTURE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

class TimelineChart;

// The maximum number of lanes; the picture says how many are left out.
constexpr int kMostLanes = 60;

// An SVG page, UTF-8: the time axis, and below it the lanes of a finished chart, input first. Its size is bounded:
// marks too close to be distinguished are drawn as one.
QByteArray DrawTimeline(const TimelineChart& chart, const QString& title);

}  // namespace tavi

#endif  // HOST_PICTURE_TIMELINE_PICTURE_H_
