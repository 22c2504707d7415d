#include "guest/translation/device_description.h"

#include <algorithm>
#include <linux/input.h>

#include "guest/translation/event_frame.h"
#include "guest/translation/gamepad_axes.h"
#include "guest/translation/typed_keys.h"

namespace taviguest {

namespace {

// Escape to microphone mute: every key below the buttons.
constexpr int kFirstKey = KEY_ESC;
constexpr int kLastKey = KEY_MICMUTE;

// Libinput rejects a screen without a size; the value does not matter.
constexpr int kScreenResolution = 10;

bool IsOnKeyboard(int code, const GuestOptions& options) {
  if (code < kFirstKey || code > kLastKey) return false;
  return options.system == GuestSystem::kLinux || options.has_full_keyboard || !IsCharacterKey(code);
}

std::vector<int> KeyboardKeys(const GuestOptions& options) {
  std::vector<int> keys;
  for (int code = kFirstKey; code <= kLastKey; ++code) {
    if (IsOnKeyboard(code, options)) keys.push_back(code);
  }
  return keys;
}

std::vector<int> KeysOf(KernelDevice device, const GuestOptions& options) {
  switch (device) {
    case KernelDevice::kScreen: return {BTN_TOUCH};
    case KernelDevice::kKeyboard: return KeyboardKeys(options);
    case KernelDevice::kPointer:
      return {BTN_LEFT, BTN_RIGHT, BTN_MIDDLE, BTN_SIDE, BTN_EXTRA, BTN_FORWARD, BTN_BACK, BTN_TASK};
    case KernelDevice::kGamepad:
      return {BTN_SOUTH, BTN_EAST,   BTN_NORTH, BTN_WEST, BTN_TL,     BTN_TR,    BTN_TL2,
              BTN_TR2,   BTN_SELECT, BTN_START, BTN_MODE, BTN_THUMBL, BTN_THUMBR};
    case KernelDevice::kTouchpad: return {BTN_LEFT, BTN_TOOL_FINGER, BTN_TOUCH};
  }
  return {};
}

std::vector<AbsoluteAxis> Place(const Size& surface) {
  return {{ABS_X, 0, surface.width - 1}, {ABS_Y, 0, surface.height - 1}};
}

std::vector<AbsoluteAxis> ScreenAxes(const Size& surface) {
  return {{ABS_MT_SLOT, 0, kSlotCount - 1},
          {ABS_MT_TRACKING_ID, 0, kLastTrackingId},
          {ABS_MT_POSITION_X, 0, surface.width - 1, kScreenResolution},
          {ABS_MT_POSITION_Y, 0, surface.height - 1, kScreenResolution}};
}

std::vector<AbsoluteAxis> GamepadAxes() {
  std::vector<AbsoluteAxis> axes;
  for (const GamepadAxis& row : kGamepadAxes) axes.push_back(row.axis);
  return axes;
}

void DescribePointer(const GuestOptions& options, DeviceDescription* description) {
  description->relative_axes = {REL_WHEEL, REL_WHEEL_HI_RES};
  if (options.system == GuestSystem::kAndroid) {
    description->relative_axes.insert(description->relative_axes.begin(), {REL_X, REL_Y});
  } else {
    description->absolute_axes = Place(options.surface);
  }
}

}  // namespace

DeviceDescription DescribeDevice(KernelDevice device, const GuestOptions& options) {
  DeviceDescription description;
  description.keys = KeysOf(device, options);
  switch (device) {
    case KernelDevice::kScreen:
      description.properties = {INPUT_PROP_DIRECT};
      description.absolute_axes = ScreenAxes(options.surface);
      break;
    case KernelDevice::kKeyboard: break;
    case KernelDevice::kPointer: DescribePointer(options, &description); break;
    case KernelDevice::kGamepad: description.absolute_axes = GamepadAxes(); break;
    case KernelDevice::kTouchpad:
      description.properties = {INPUT_PROP_POINTER, INPUT_PROP_BUTTONPAD};
      description.absolute_axes = Place(options.surface);
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

bool HasKey(KernelDevice device, int code, const GuestOptions& options) {
  if (device == KernelDevice::kKeyboard) return IsOnKeyboard(code, options);
  const std::vector<int> keys = KeysOf(device, options);
  return std::find(keys.begin(), keys.end(), code) != keys.end();
}

KernelEvents RestFrame(KernelDevice device, const GuestOptions& options) {
  EventFrame frame(device);
  if (device == KernelDevice::kScreen) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
      frame.Axis(ABS_MT_SLOT, slot).Axis(ABS_MT_TRACKING_ID, kNoTrackingId);
    }
  }
  if (device == KernelDevice::kGamepad) {
    for (const GamepadAxis& row : kGamepadAxes) frame.Axis(row.axis.code, 0);
  }
  for (const int key : KeysOf(device, options)) frame.Key(key, false);
  return frame.Close();
}

}  // namespace taviguest
