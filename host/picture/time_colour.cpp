#include "host/picture/time_colour.h"

#include <algorithm>
#include <array>

namespace tavi {

namespace {

struct Colour {
  int red;
  int green;
  int blue;
};

// At equal distances.
constexpr std::array<Colour, 5> kStops = {
    {{27, 42, 140}, {123, 31, 162}, {216, 27, 96}, {230, 74, 25}, {245, 160, 20}}};

int Between(int from, int to, double part) { return qRound(from + (to - from) * part); }

}  // namespace

int TimeColourIndex(qint64 ms, qint64 total_ms) {
  if (total_ms <= 0) return 0;
  return static_cast<int>(std::clamp<qint64>(ms * (kTimeColours - 1) / total_ms, 0, kTimeColours - 1));
}

QString TimeColour(int index) {
  const double place = static_cast<double>(index) / (kTimeColours - 1) * (kStops.size() - 1);
  const auto stop = std::min(static_cast<std::size_t>(place), kStops.size() - 2);
  const Colour& from = kStops[stop];
  const Colour& to = kStops[stop + 1];
  const double part = place - static_cast<double>(stop);
  const int rgb = Between(from.red, to.red, part) << 16 | Between(from.green, to.green, part) << 8 |
                  Between(from.blue, to.blue, part);
  return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
}

}  // namespace tavi
