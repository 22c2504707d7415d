#include "handlers/qt_wheel_event_transparent_handler.h"

#include <cmath>
#include <optional>

#include <QWheelEvent>

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "handlers/mouse_transparent_manager.h"
#include "qt/wheel_events.h"

namespace taviinputmanager {
namespace {

constexpr int kUnitsPerNotch = 100;

// The event's position in display pixels, or that of the guest's own pointer if that may be elsewhere. Nothing for a
// window or display without a size.
std::optional<QPoint> WheelPoint(const QWheelEvent* event, bool transparent_pointer) {
  const MouseTransparentManager* pointer = MouseTransparentManager::GetInstance();
  if (transparent_pointer && pointer->HasPosition()) return pointer->GetPosition();
  const double scale = DisplayGeometry::GetInstance()->GetWindowScale();
  if (!DisplayGeometry::IsScale(scale)) return std::nullopt;
  const QPoint window = RoundedPoint(event->position());
  return QPoint(Round(window.x() / scale), Round(window.y() / scale));
}

}  // namespace

QtWheelEventTransparentHandler* QtWheelEventTransparentHandler::GetInstance() {
  static QtWheelEventTransparentHandler instance;
  return &instance;
}

void QtWheelEventTransparentHandler::OnWheel(QWheelEvent* event, bool transparent_pointer, double delta,
                                             int use_delta) {
  const int direction = qt::TurnOf(*event) > 0 ? 1 : -1;
  const std::optional<QPoint> point = WheelPoint(event, transparent_pointer);
  if (!point) return;
  const DisplayGeometry* geometry = DisplayGeometry::GetInstance();
  const QSize display = geometry->GetOrientedDisplaySize();
  int x = kNoPosition;
  int y = kNoPosition;
  geometry->RelativeToTouch(x, y, static_cast<double>(point->x()) / display.width(),
                            static_cast<double>(point->y()) / display.height());
  if (x == kNoPosition || y == kNoPosition) return;  // no display to turn the wheel on
  if (use_delta != 1) return SendEvent(guest_command::Wheel(x, y, direction * kUnitsPerNotch, 0));
  const double amount = direction * delta * kUnitsPerNotch;
  if (std::isfinite(amount)) SendEvent(guest_command::WheelWithDelta(x, y, amount));  // guests parse numbers
}

}  // namespace taviinputmanager
