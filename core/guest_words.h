// The first word of every line for the guest, for the code that writes lines and the code that parses them.
#ifndef CORE_GUEST_WORDS_H_
#define CORE_GUEST_WORDS_H_

#include "core/latin1.h"

namespace taviinputmanager::guest_words {

constexpr QLatin1String kSlotPress = Latin1("SLOTPRESS");
constexpr QLatin1String kSlotRelease = Latin1("SLOTRELEASE");
constexpr QLatin1String kSlotReleaseAll = Latin1("SLOTRELEASEALL");
constexpr QLatin1String kSlotMultiPress = Latin1("SLOTMULTIPRESS");
constexpr QLatin1String kSlotMultiRelease = Latin1("SLOTMULTIRELEASE");
constexpr QLatin1String kKeyPress = Latin1("KBDPR");
constexpr QLatin1String kKeyRelease = Latin1("KBDRL");
constexpr QLatin1String kMouseMove = Latin1("MOUSEMOVE_REL");
constexpr QLatin1String kWheel = Latin1("WHEEL");
constexpr QLatin1String kWheelWithDelta = Latin1("WHEEL_WITH_DELTA");
constexpr QLatin1String kText = Latin1("TEXT");
constexpr QLatin1String kTextControl = Latin1("TEXT_CONTROL");
constexpr QLatin1String kLeftStickAxis = Latin1("LSTICKAXIS");
constexpr QLatin1String kRightStickAxis = Latin1("RSTICKAXIS");
constexpr QLatin1String kLeftTriggerAxis = Latin1("LTRIGGERAXIS");
constexpr QLatin1String kRightTriggerAxis = Latin1("RTRIGGERAXIS");
constexpr QLatin1String kGamepadButton = Latin1("GPDBUTTON");
constexpr QLatin1String kHatX = Latin1("HATX");
constexpr QLatin1String kHatY = Latin1("HATY");
constexpr QLatin1String kTouchpadLightTouch = Latin1("TOUCHPADLIGHTTOUCH");
constexpr QLatin1String kTouchpadPress = Latin1("TOUCHPADPRESS");
constexpr QLatin1String kTouchpadRelease = Latin1("TOUCHPADRELEASE");

}  // namespace taviinputmanager::guest_words

#endif  // CORE_GUEST_WORDS_H_
