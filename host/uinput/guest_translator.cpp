#include "host/uinput/guest_translator.h"

#include <linux/input.h>

#include "host/guest/guest_line.h"
#include "host/guest/rounding.h"
#include "host/uinput/device_description.h"
#include "host/uinput/gamepad_axes.h"
#include "host/uinput/text_typing.h"
#include "keymap/scan_codes.h"

namespace tavi {

using Kind = GuestLine::Kind;

namespace {

constexpr double kAmountOfNotch = 100;
constexpr double kMostNotches = 1000;  // of one line; nobody turns further
constexpr int kPartsOfNotch = 120;     // the kernel's unit of fine wheels

// A line with a number in its last field has the pointer's place where the amount should be, and is one notch.
double NotchesOf(const GuestLine& line) {
  const double amount = line.numbers[2];
  if (line.numbers[3] != 0) return amount < 0 ? -1 : 1;
  return qBound(-kMostNotches, amount / kAmountOfNotch, kMostNotches);
}

// A scan code of the host that the library has no guest code for reaches the guest as it is. Those above the keyboard's
// codes can be told from them.
int KeyboardCodeOf(int guest_code) {
  return guest_code < BTN_MISC ? guest_code : tavikeymapmanager::LinuxKeyOfScanCode(guest_code);
}

}  // namespace

Translation GuestTranslator::Translate(const GuestLine& line) {
  switch (line.kind) {
    case Kind::kUnknown: return {{}, QStringLiteral("not understood")};
    case Kind::kSlotPress:
    case Kind::kSlotRelease:
    case Kind::kSlotReleaseAll:
    case Kind::kMultiPress:
    case Kind::kMultiRelease: return Touch(line);
    case Kind::kKeyPress: return PressKey(line.Integer(0), true);
    case Kind::kKeyRelease: return PressKey(line.Integer(0), false);
    case Kind::kMouseMove: return {MovePointer(line.PointAt(0)), {}};
    case Kind::kWheel:
    case Kind::kWheelWithDelta: return {TurnWheel(line), {}};
    case Kind::kText: return TypeText(line.text);
    case Kind::kTextControl: return TypeControl(line.text);
    case Kind::kGamepadButton: return PressGamepadButton(line.Integer(0), line.Integer(1) != 0);
    case Kind::kTouchpadTouch:
    case Kind::kTouchpadPress:
    case Kind::kTouchpadRelease: return {UseTouchpad(line), {}};
    default: return {MoveGamepadAxes(line), {}};
  }
}

Translation GuestTranslator::Touch(const GuestLine& line) {
  Translation result;
  if (!contacts_.Report(line, &result.events)) result.problem = QStringLiteral("there is no such slot");
  return result;
}

Translation GuestTranslator::PressKey(int guest_code, bool down) {
  if (HasKey(KernelDevice::kPointer, guest_code)) return {HoldKey(KernelDevice::kPointer, guest_code, down), {}};
  const int code = KeyboardCodeOf(guest_code);
  if (HasKey(KernelDevice::kKeyboard, code)) return {HoldKey(KernelDevice::kKeyboard, code, down), {}};
  return {{}, QStringLiteral("there is no such key")};
}

KernelEvents GuestTranslator::MovePointer(const QPoint& place) const {
  const QPoint point = PlaceOnSurface(place, surface_);
  return EventFrame(KernelDevice::kPointer).Axis(ABS_X, point.x()).Axis(ABS_Y, point.y()).Close();
}

// The wheel turns where the pointer is, so that goes there first. Coarse steps are sent as fine ones complete them.
KernelEvents GuestTranslator::TurnWheel(const GuestLine& line) {
  const int parts = Rounded(NotchesOf(line) * kPartsOfNotch);
  wheel_rest_ += parts;
  const int notches = wheel_rest_ / kPartsOfNotch;
  wheel_rest_ %= kPartsOfNotch;
  return MovePointer(line.PointAt(0)) +
         EventFrame(KernelDevice::kPointer).Turn(REL_WHEEL_HI_RES, parts).Turn(REL_WHEEL, notches).Close();
}

Translation GuestTranslator::PressGamepadButton(int code, bool down) {
  if (!HasKey(KernelDevice::kGamepad, code)) return {{}, QStringLiteral("there is no such button")};
  return {HoldKey(KernelDevice::kGamepad, code, down), {}};
}

KernelEvents GuestTranslator::MoveGamepadAxes(const GuestLine& line) const {
  EventFrame frame(KernelDevice::kGamepad);
  for (const GamepadAxis& row : kGamepadAxes) {
    if (row.kind != line.kind) continue;
    frame.Axis(row.axis.code, qBound(row.axis.minimum, line.Integer(row.field), row.axis.maximum));
  }
  return frame.Close();
}

KernelEvents GuestTranslator::UseTouchpad(const GuestLine& line) const {
  EventFrame frame(KernelDevice::kTouchpad);
  switch (line.kind) {
    case Kind::kTouchpadTouch: {
      const QPoint point = PlaceOnSurface(line.PointAt(0), surface_);
      frame.Axis(ABS_X, point.x()).Axis(ABS_Y, point.y()).Key(BTN_TOOL_FINGER, true).Key(BTN_TOUCH, true);
      break;
    }
    case Kind::kTouchpadPress: frame.Key(BTN_LEFT, true); break;
    default: frame.Key(BTN_LEFT, false).Key(BTN_TOUCH, false).Key(BTN_TOOL_FINGER, false); break;
  }
  return frame.Close();
}

KernelEvents GuestTranslator::HoldKey(KernelDevice device, int code, bool down) {
  const std::pair<KernelDevice, int> key(device, code);
  const bool is_news = down ? held_.insert(key).second : held_.erase(key) > 0;
  if (!is_news) return {};
  return EventFrame(device).Key(code, down).Close();
}

}  // namespace tavi
