#include "host/uinput/device_description.h"

#include <linux/input.h>
#include <numeric>

#include <QSize>

#include "host/guest/guest_model.h"
#include "host/uinput/gamepad_axes.h"

namespace tavi {

namespace {

constexpr int kPointerButtons[] = {BTN_LEFT,  BTN_RIGHT,   BTN_MIDDLE, BTN_SIDE,
                                   BTN_EXTRA, BTN_FORWARD, BTN_BACK,   BTN_TASK};
constexpr int kGamepadButtons[] = {BTN_SOUTH, BTN_EAST,   BTN_NORTH, BTN_WEST, BTN_TL,     BTN_TR,    BTN_TL2,
                                   BTN_TR2,   BTN_SELECT, BTN_START, BTN_MODE, BTN_THUMBL, BTN_THUMBR};
constexpr int kTouchpadButtons[] = {BTN_LEFT, BTN_TOOL_FINGER, BTN_TOUCH};

// Escape to microphone mute: every key below the buttons.
constexpr int kFirstKey = KEY_ESC;
constexpr int kLastKey = KEY_MICMUTE;

template <int N>
QVector<int> ListOf(const int (&codes)[N]) {
  return QVector<int>(std::begin(codes), std::end(codes));
}

QVector<int> KeyboardKeys() {
  QVector<int> keys(kLastKey - kFirstKey + 1);
  std::iota(keys.begin(), keys.end(), kFirstKey);
  return keys;
}

QVector<int> KeysOf(KernelDevice device) {
  switch (device) {
    case KernelDevice::kScreen: return {BTN_TOUCH};
    case KernelDevice::kKeyboard: return KeyboardKeys();
    case KernelDevice::kPointer: return ListOf(kPointerButtons);
    case KernelDevice::kGamepad: return ListOf(kGamepadButtons);
    case KernelDevice::kTouchpad: return ListOf(kTouchpadButtons);
  }
  return {};
}

QVector<AbsoluteAxis> Place(int code_x, int code_y, const QSize& surface) {
  return {{code_x, 0, surface.width() - 1}, {code_y, 0, surface.height() - 1}};
}

QVector<AbsoluteAxis> ScreenAxes(const QSize& surface) {
  return QVector<AbsoluteAxis>{{ABS_MT_SLOT, 0, kGuestSlotCount - 1}, {ABS_MT_TRACKING_ID, 0, kLastTrackingId}} +
         Place(ABS_MT_POSITION_X, ABS_MT_POSITION_Y, surface);
}

QVector<AbsoluteAxis> GamepadAxes() {
  QVector<AbsoluteAxis> axes;
  for (const GamepadAxis& row : kGamepadAxes) axes.append(row.axis);
  return axes;
}

}  // namespace

DeviceDescription DescribeDevice(KernelDevice device, const QSize& surface) {
  DeviceDescription description;
  description.keys = KeysOf(device);
  switch (device) {
    case KernelDevice::kScreen:
      description.properties = {INPUT_PROP_DIRECT};
      description.absolute_axes = ScreenAxes(surface);
      break;
    case KernelDevice::kKeyboard: break;
    case KernelDevice::kPointer:
      description.relative_axes = {REL_WHEEL, REL_WHEEL_HI_RES};
      description.absolute_axes = Place(ABS_X, ABS_Y, surface);
      break;
    case KernelDevice::kGamepad: description.absolute_axes = GamepadAxes(); break;
    case KernelDevice::kTouchpad:
      description.properties = {INPUT_PROP_POINTER, INPUT_PROP_BUTTONPAD};
      description.absolute_axes = Place(ABS_X, ABS_Y, surface);
      break;
  }
  return description;
}

const char* WordOfDevice(KernelDevice device) {
  switch (device) {
    case KernelDevice::kScreen: return "screen";
    case KernelDevice::kKeyboard: return "keyboard";
    case KernelDevice::kPointer: return "pointer";
    case KernelDevice::kGamepad: return "gamepad";
    case KernelDevice::kTouchpad: return "touchpad";
  }
  return "";
}

bool HasKey(KernelDevice device, int code) { return KeysOf(device).contains(code); }

}  // namespace tavi
