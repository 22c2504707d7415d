// The first word of every line that the guest understands. Who builds a line and who reads one take it from here.
#ifndef CORE_GUEST_WORDS_H_
#define CORE_GUEST_WORDS_H_

#include <QLatin1String>

namespace taviinputmanager::guest_words {

constexpr QLatin1String kSlotPress("SLOTPRESS");
constexpr QLatin1String kSlotRelease("SLOTRELEASE");
constexpr QLatin1String kSlotReleaseAll("SLOTRELEASEALL");
constexpr QLatin1String kSlotMultiPress("SLOTMULTIPRESS");
constexpr QLatin1String kSlotMultiRelease("SLOTMULTIRELEASE");
constexpr QLatin1String kKeyPress("KBDPR");
constexpr QLatin1String kKeyRelease("KBDRL");
constexpr QLatin1String kMouseMove("MOUSEMOVE_REL");
constexpr QLatin1String kWheel("WHEEL");
constexpr QLatin1String kWheelWithDelta("WHEEL_WITH_DELTA");
constexpr QLatin1String kText("TEXT");
constexpr QLatin1String kTextControl("TEXT_CONTROL");
constexpr QLatin1String kLeftStickAxis("LSTICKAXIS");
constexpr QLatin1String kRightStickAxis("RSTICKAXIS");
constexpr QLatin1String kLeftTriggerAxis("LTRIGGERAXIS");
constexpr QLatin1String kRightTriggerAxis("RTRIGGERAXIS");
constexpr QLatin1String kGamepadButton("GPDBUTTON");
constexpr QLatin1String kHatX("HATX");
constexpr QLatin1String kHatY("HATY");
constexpr QLatin1String kTouchpadLightTouch("TOUCHPADLIGHTTOUCH");
constexpr QLatin1String kTouchpadPress("TOUCHPADPRESS");
constexpr QLatin1String kTouchpadRelease("TOUCHPADRELEASE");

}  // namespace taviinputmanager::guest_words

#endif  // CORE_GUEST_WORDS_H_
