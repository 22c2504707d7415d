#include "guest/translation/guest_translator.h"

#include <algorithm>
#include <linux/input.h>

#include "guest/line/numbers.h"
#include "guest/translation/device_description.h"
#include "guest/translation/gamepad_axes.h"
#include "guest/translation/scan_codes.h"
#include "guest/translation/text_typing.h"

namespace taviguest {

using Kind = GuestLine::Kind;

namespace {

constexpr double kAmountOfNotch = 100;
constexpr double kMostNotches = 1000;  // per line; far beyond any real scroll
constexpr int kPartsOfNotch = 120;     // the kernel's unit of high-resolution wheels

// A line with a number in its last field has the pointer's position in place of the amount, and is one notch.
double NotchesOf(const GuestLine& line) {
  const double amount = line.numbers[2];
  if (line.numbers[3] != 0) return amount < 0 ? -1 : 1;
  return std::clamp(amount / kAmountOfNotch, -kMostNotches, kMostNotches);
}

// A host's scan code that the library has no guest code for is sent unchanged. Codes above those of keyboards can be
// recognized.
int KeyboardCodeOf(int guest_code) { return guest_code < BTN_MISC ? guest_code : KeyOfExtendedScanCode(guest_code); }

KernelEvents LetGoOfTouchpad() {
  return EventFrame(KernelDevice::kTouchpad)
      .Key(BTN_LEFT, false)
      .Key(BTN_TOUCH, false)
      .Key(BTN_TOOL_FINGER, false)
      .Close();
}

}  // namespace

// Android's cursor is initially in the middle.
GuestTranslator::GuestTranslator(const GuestOptions& options)
    : options_(options), contacts_(options), pointer_{options.surface.width / 2, options.surface.height / 2} {}

Translation GuestTranslator::Translate(const GuestLine& line) {
  switch (line.kind) {
    case Kind::kUnknown: return {{}, "not understood"};
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
    case Kind::kText: return TypeText(line.text, options_);
    case Kind::kTextControl: return TypeControl(line.text);
    case Kind::kGamepadButton: return PressGamepadButton(line.Integer(0), line.Integer(1) != 0);
    case Kind::kTouchpadTouch:
    case Kind::kTouchpadPress:
    case Kind::kTouchpadRelease: return {UseTouchpad(line), {}};
    default: return {MoveGamepadAxes(line), {}};
  }
}

KernelEvents GuestTranslator::LiftAll() {
  KernelEvents events = contacts_.LiftAll();
  Append(LiftKeys(), &events);
  Append(RestGamepadAxes(), &events);
  if (std::exchange(is_touchpad_used_, false)) Append(LetGoOfTouchpad(), &events);
  wheel_rest_ = 0;
  return events;
}

Translation GuestTranslator::Touch(const GuestLine& line) {
  Translation result;
  result.problem = contacts_.Report(line, &result.events);
  return result;
}

Translation GuestTranslator::PressKey(int guest_code, bool down) {
  if (HasKey(KernelDevice::kPointer, guest_code, options_)) {
    return {HoldKey(KernelDevice::kPointer, guest_code, down), {}};
  }
  const int code = KeyboardCodeOf(guest_code);
  if (HasKey(KernelDevice::kKeyboard, code, options_)) return {HoldKey(KernelDevice::kKeyboard, code, down), {}};
  return {{}, "there is no such key"};
}

KernelEvents GuestTranslator::MovePointer(const Point& place) {
  const Point point = PlaceOnSurface(place, options_.surface);
  EventFrame frame(KernelDevice::kPointer);
  if (options_.system != GuestSystem::kAndroid) return frame.Axis(ABS_X, point.x).Axis(ABS_Y, point.y).Close();
  const Point from = std::exchange(pointer_, point);
  return frame.Turn(REL_X, point.x - from.x).Turn(REL_Y, point.y - from.y).Close();
}

// The wheel scrolls at the pointer, so the pointer is moved first. Coarse steps are sent when fine ones complete them.
KernelEvents GuestTranslator::TurnWheel(const GuestLine& line) {
  const int parts = RoundToInt(NotchesOf(line) * kPartsOfNotch);
  wheel_rest_ += parts;
  const int notches = wheel_rest_ / kPartsOfNotch;
  wheel_rest_ %= kPartsOfNotch;
  KernelEvents events = MovePointer(line.PointAt(0));
  EventFrame turn(KernelDevice::kPointer);
  Append(turn.Turn(REL_WHEEL_HI_RES, parts).Turn(REL_WHEEL, notches).Close(), &events);
  return events;
}

Translation GuestTranslator::PressGamepadButton(int code, bool down) {
  if (!HasKey(KernelDevice::kGamepad, code, options_)) return {{}, "there is no such button"};
  return {HoldKey(KernelDevice::kGamepad, code, down), {}};
}

KernelEvents GuestTranslator::MoveGamepadAxes(const GuestLine& line) {
  EventFrame frame(KernelDevice::kGamepad);
  for (const GamepadAxis& row : kGamepadAxes) {
    if (row.kind != line.kind) continue;
    const int value = std::clamp(line.Integer(row.field), row.axis.minimum, row.axis.maximum);
    frame.Axis(row.axis.code, value);
    if (value != 0) {
      axes_off_rest_.insert(row.axis.code);
    } else {
      axes_off_rest_.erase(row.axis.code);
    }
  }
  return frame.Close();
}

KernelEvents GuestTranslator::RestGamepadAxes() {
  EventFrame frame(KernelDevice::kGamepad);
  for (const int code : std::exchange(axes_off_rest_, {})) frame.Axis(code, 0);
  return frame.Close();
}

KernelEvents GuestTranslator::UseTouchpad(const GuestLine& line) {
  is_touchpad_used_ = line.kind != Kind::kTouchpadRelease;
  if (!is_touchpad_used_) return LetGoOfTouchpad();
  EventFrame frame(KernelDevice::kTouchpad);
  if (line.kind == Kind::kTouchpadPress) return frame.Key(BTN_LEFT, true).Close();
  const Point point = PlaceOnSurface(line.PointAt(0), options_.surface);
  return frame.Axis(ABS_X, point.x).Axis(ABS_Y, point.y).Key(BTN_TOOL_FINGER, true).Key(BTN_TOUCH, true).Close();
}

KernelEvents GuestTranslator::HoldKey(KernelDevice device, int code, bool down) {
  const std::pair<KernelDevice, int> key(device, code);
  const bool is_news = down ? held_.insert(key).second : held_.erase(key) > 0;
  if (!is_news) return {};
  return EventFrame(device).Key(code, down).Close();
}

KernelEvents GuestTranslator::LiftKeys() {
  KernelEvents events;
  for (const auto& [device, code] : std::exchange(held_, {})) {
    Append(EventFrame(device).Key(code, false).Close(), &events);
  }
  return events;
}

}  // namespace taviguest
