#include "host/editor/item_handles.h"

#include <algorithm>
#include <cmath>

#include <QLineF>
#include <QPoint>
#include <QSize>

#include "host/guest/rounding.h"
#include "keymapmanager/item_types.h"

namespace tavi {

namespace km = tavikeymapmanager;
using Shape = ItemHandle::Shape;

namespace {

constexpr double kLeastSize = 0.005;  // of a radius or area: smaller ones cannot be gripped
constexpr double kMostArea = 2;       // areas may extend beyond the display
const QPointF kFirstArea(60, 40);     // position of the grip of an area that has no size yet

enum class Unit { kWidth, kHeight };

struct HandleRow {
  const char* field;
  Shape shape;
  const char* origin;  // the field with the origin, or null
  Unit unit;           // of a radius
};

constexpr HandleRow kHandles[] = {
    {"point", Shape::kPoint, nullptr, Unit::kWidth},
    {"alt_point", Shape::kPoint, nullptr, Unit::kWidth},
    {"radius", Shape::kCircle, "point", Unit::kWidth},
    {"walk_radius", Shape::kCircle, "point", Unit::kWidth},
    {"swipe_radius", Shape::kCircle, "point", Unit::kHeight},
    {"range_radius", Shape::kCircle, "point", Unit::kHeight},
    {"range_size", Shape::kArea, "point", Unit::kWidth},
    {"circle_point", Shape::kPoint, nullptr, Unit::kWidth},
    {"circle_size", Shape::kCircle, "circle_point", Unit::kHeight},
    {"character_point", Shape::kPoint, nullptr, Unit::kWidth},
    {"curve_start", Shape::kOffset, "point", Unit::kWidth},
    {"curve_end", Shape::kOffset, "point", Unit::kWidth},
};

double Thousandths(double value) { return std::round(value * 1000) / 1000; }

QPointF ToView(const QVector<double>& pair, const QSizeF& view) {
  return {pair.value(0) * view.width(), pair.value(1) * view.height()};
}

bool HasWord(const km::ConfigItem& item, const char* field, const char* beginning) {
  return km::TextOfField(item, QLatin1String(field)).startsWith(QLatin1String(beginning));
}

bool IsUsed(const km::ConfigItem& item, const HandleRow& row, const QVector<double>& numbers) {
  if (row.shape == Shape::kOffset) return HasWord(item, "curve_straight", "true");
  if (row.shape == Shape::kArea && HasWord(item, "range_mode", "Range_User")) return true;
  return std::any_of(numbers.begin(), numbers.end(), [](double number) { return number != 0; });
}

ItemHandle HandleOf(const HandleRow& row, const QVector<double>& numbers, const QPointF& origin, const QSizeF& view) {
  ItemHandle handle{row.shape, QLatin1String(row.field), {}, origin, 0, 1};
  switch (row.shape) {
    case Shape::kPoint: handle.place = ToView(numbers, view); break;
    case Shape::kOffset: handle.place = origin + ToView(numbers, view); break;
    case Shape::kArea:
      handle.place = origin + (numbers[0] == 0 && numbers[1] == 0 ? kFirstArea : ToView(numbers, view) / 2);
      break;
    case Shape::kCircle:
      handle.unit = row.unit == Unit::kWidth ? view.width() : view.height();
      handle.radius = numbers[0] * handle.unit;
      handle.place = origin + QPointF(handle.radius, 0);
      if (handle.place.x() > view.width()) handle.place = origin - QPointF(handle.radius, 0);
      break;
  }
  return handle;
}

}  // namespace

QVector<ItemHandle> HandlesOf(const km::ConfigItem& item, const QSizeF& view) {
  QVector<ItemHandle> handles;
  if (item.rel_x == 0 && item.rel_y == 0) return handles;
  for (const HandleRow& row : kHandles) {
    const QVector<double> numbers = km::NumbersOfField(item, QLatin1String(row.field));
    if (numbers.isEmpty() || !IsUsed(item, row, numbers)) continue;
    const QVector<double> origin =
        row.origin == nullptr ? QVector<double>() : km::NumbersOfField(item, QLatin1String(row.origin));
    handles.append(HandleOf(row, numbers, ToView(origin, view), view));
  }
  return handles;
}

HandleValue ValueAt(const ItemHandle& handle, const QPointF& place, const QSizeF& view) {
  const QPointF from = handle.shape == Shape::kPoint ? QPointF() : handle.origin;
  const QPointF offset((place.x() - from.x()) / view.width(), (place.y() - from.y()) / view.height());
  const auto pair = [&offset](double factor, double least, double most) {
    return QPointF(Thousandths(qBound(least, offset.x() * factor, most)),
                   Thousandths(qBound(least, offset.y() * factor, most)));
  };
  HandleValue value;
  switch (handle.shape) {
    // A point at [0, 0] would mean that there is none.
    case Shape::kPoint: value.pair = pair(1, 0.001, 1); break;
    case Shape::kOffset: value.pair = pair(1, -1, 1); break;
    case Shape::kArea: value.pair = pair(2, kLeastSize, kMostArea); break;
    case Shape::kCircle:
      value.number = Thousandths(qBound(kLeastSize, QLineF(from, place).length() / handle.unit, 1.0));
      break;
  }
  return value;
}

QPointF NudgedPoint(const QPointF& point, const QPoint& steps, const QSize& guest) {
  const auto nudged = [](double at, int step, int size) {
    if (step == 0) return at;  // as in the file
    return qBound(0, Rounded(at * size) + step, size) / static_cast<double>(size);
  };
  return {nudged(point.x(), steps.x(), guest.width()), nudged(point.y(), steps.y(), guest.height())};
}

}  // namespace tavi
