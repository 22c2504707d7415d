#include "guest/translation/device_description.h"

#include <algorithm>
#include <linux/input.h>

#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

const GuestOptions kOptions;  // a surface of 1280 x 720

const AbsoluteAxis* FindAxis(const DeviceDescription& description, int code) {
  for (const AbsoluteAxis& axis : description.absolute_axes) {
    if (axis.code == code) return &axis;
  }
  return nullptr;
}

bool Has(const std::vector<int>& codes, int code) { return std::find(codes.begin(), codes.end(), code) != codes.end(); }

bool CanDo(const KernelEvent& event) {
  const DeviceDescription description = DescribeDevice(event.device, kOptions);
  switch (event.type) {
    case EV_SYN: return true;
    case EV_KEY: return Has(description.keys, event.code);
    case EV_REL: return Has(description.relative_axes, event.code);
    default: break;
  }
  const AbsoluteAxis* axis = FindAxis(description, event.code);
  const bool is_lift = event.code == ABS_MT_TRACKING_ID && event.value == -1;
  return axis && (is_lift || (event.value >= axis->minimum && event.value <= axis->maximum));
}

TEST(DeviceDescription, TellsOfEveryEventThatALineCanMake) {
  GuestTranslator translator(kOptions);
  for (const char* line : {"SLOTPRESS:25:25:1:1:9999:9999",
                           "SLOTMULTIPRESS:0:0:-1:-1:1:1:2:2",
                           "SLOTMULTIRELEASE:0:1",
                           "SLOTRELEASE:25",
                           "KBDPR:1:1",
                           "KBDPR:248:1",
                           "KBDPR:272:1",
                           "KBDPR:279:1",
                           "MOUSEMOVE_REL:9999:9999",
                           "WHEEL:1:1:100:0",
                           "WHEEL_WITH_DELTA:1:1:-50.5:0",
                           "TEXT:aA\n\t",
                           "TEXT_CONTROL:BACKSPACE",
                           "LSTICKAXIS:1000000:-1000000",
                           "RSTICKAXIS:2000000:-2000000",
                           "LTRIGGERAXIS:1",
                           "RTRIGGERAXIS:1",
                           "GPDBUTTON:304:1",
                           "GPDBUTTON:318:1",
                           "HATX:-1",
                           "HATY:1",
                           "TOUCHPADLIGHTTOUCH:9999:9999",
                           "TOUCHPADPRESS",
                           "TOUCHPADRELEASE"}) {
    const Translation translation = translator.Translate(ParseGuestLine(line));
    EXPECT_FALSE(translation.events.empty()) << line;
    for (const KernelEvent& event : translation.events) {
      EXPECT_TRUE(CanDo(event)) << line << ": " << KernelEventText(event);
    }
  }
}

TEST(DeviceDescription, TheScreenHasTheSurfacesPlacesAndAllSlots) {
  const DeviceDescription screen = DescribeDevice(KernelDevice::kScreen, kOptions);
  EXPECT_EQ(FindAxis(screen, ABS_MT_POSITION_X)->maximum, 1279);
  EXPECT_EQ(FindAxis(screen, ABS_MT_POSITION_Y)->maximum, 719);
  EXPECT_EQ(FindAxis(screen, ABS_MT_SLOT)->maximum, 25);
  EXPECT_EQ(screen.properties, std::vector<int>{INPUT_PROP_DIRECT});
}

TEST(DeviceDescription, EachDeviceHasAWordOfItsOwn) {
  Texts words;
  for (const KernelDevice device : kKernelDevices) words.emplace_back(WordOfDevice(device));
  EXPECT_EQ(words, (Texts{"screen", "keyboard", "pointer", "gamepad", "touchpad"}));
}

}  // namespace
}  // namespace taviguest
