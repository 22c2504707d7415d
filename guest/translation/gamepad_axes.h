// The axes of the gamepad that the numbers of a line move. They are those of the drivers of common gamepads.
#ifndef GUEST_TRANSLATION_GAMEPAD_AXES_H_
#define GUEST_TRANSLATION_GAMEPAD_AXES_H_

#include <linux/input-event-codes.h>

#include "guest/line/guest_line.h"
#include "guest/translation/device_description.h"

namespace taviguest {

struct GamepadAxis {
  GuestLine::Kind kind;
  size_t field;
  AbsoluteAxis axis;
};

constexpr int kStickLimit = 1000000;  // in each direction, as in the lines

constexpr GamepadAxis kGamepadAxes[] = {
    {GuestLine::Kind::kLeftStick, 0, {ABS_X, -kStickLimit, kStickLimit}},
    {GuestLine::Kind::kLeftStick, 1, {ABS_Y, -kStickLimit, kStickLimit}},
    {GuestLine::Kind::kRightStick, 0, {ABS_RX, -kStickLimit, kStickLimit}},
    {GuestLine::Kind::kRightStick, 1, {ABS_RY, -kStickLimit, kStickLimit}},
    {GuestLine::Kind::kLeftTrigger, 0, {ABS_Z, 0, 1}},
    {GuestLine::Kind::kRightTrigger, 0, {ABS_RZ, 0, 1}},
    {GuestLine::Kind::kHatX, 0, {ABS_HAT0X, -1, 1}},
    {GuestLine::Kind::kHatY, 0, {ABS_HAT0Y, -1, 1}},
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_GAMEPAD_AXES_H_
