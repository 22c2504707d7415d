#ifndef HOST_PICTURE_TIMELINE_PICTURE_H_
#define HOST_PICTURE_TIMELINE_PICTURE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

class TimelineChart;

// At most as many lanes are drawn; of those that are left out, the picture tells how many.
constexpr int kMostLanes = 60;

// A page of SVG, UTF-8: the axis of time, and below it the lanes of a chart that is finished, input first. Its size is
// bounded: things that are closer than one can see are drawn as one.
QByteArray DrawTimeline(const TimelineChart& chart, const QString& title);

}  // namespace tavi

#endif  // HOST_PICTURE_TIMELINE_PICTURE_H_
