#include "handlers/mouse_transparent_manager.h"

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/input_status_manager.h"
#include "core/key_code_converter.h"
#include "core/numbers.h"

namespace taviinputmanager {
namespace {

constexpr double kKeptFreeAtTop = 0.1;  // relative to the display's height, after a wrap

}  // namespace

MouseTransparentManager* MouseTransparentManager::GetInstance() {
  static MouseTransparentManager instance;
  return &instance;
}

MouseTransparentManager::~MouseTransparentManager() = default;

void MouseTransparentManager::SetPosition(int window_x, int window_y) {
  const double scale = DisplayGeometry::GetInstance()->GetWindowScale();
  if (!DisplayGeometry::IsScale(scale)) return;  // a window or display without a size: the pointer stays
  x_ = window_x / scale;
  y_ = window_y / scale;
}

void MouseTransparentManager::AddRelative(double dx, double dy) {
  x_ += dx;
  y_ += dy;
  const QSize display = DisplayGeometry::GetInstance()->GetOrientedDisplaySize();
  const int top = Truncate(display.height() * kKeptFreeAtTop);
  if (x_ >= display.width()) x_ -= display.width();
  if (x_ < 0) x_ += display.width();
  if (y_ >= display.height()) y_ -= display.height() - top;
  if (y_ < top) y_ += display.height() - top;
}

QPoint MouseTransparentManager::GetPosition() const { return {Truncate(x_), Truncate(y_)}; }

LineBuffer MouseTransparentManager::MoveLine() const {
  if (!HasPosition()) return {};
  const DisplayGeometry* geometry = DisplayGeometry::GetInstance();
  const QSize display = geometry->GetOrientedDisplaySize();
  int x = kNoPosition;
  int y = kNoPosition;
  geometry->RelativeToTouch(x, y, x_ / display.width(), y_ / display.height());
  if (x == kNoPosition || y == kNoPosition) return {};  // no display to point at
  return guest_command::MouseMove(x, y);
}

LineBuffer MouseTransparentManager::ButtonPressLine(int button) {
  const int code = KeyCodeConverter::GetInstance()->MouseButtonToGuestCode(button);
  if (code == -1) return {};
  InputStatusManager::GetInstance()->AddHeldKey(code);
  return guest_command::KeyPress(code);
}

LineBuffer MouseTransparentManager::ButtonReleaseLine(int button) {
  const int code = KeyCodeConverter::GetInstance()->MouseButtonToGuestCode(button);
  if (code == -1) return {};
  InputStatusManager::GetInstance()->RemoveHeldKey(code);
  return guest_command::KeyRelease(code);
}

}  // namespace taviinputmanager
