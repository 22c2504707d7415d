#include "host/window/pointer/x11_raw_motion.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

// ---- Ways

// In the server's format: the valuators in the mask, accelerated, then as the device counted them.
struct Motion {
  xcb_input_raw_motion_event_t head;
  uint32_t mask;
  xcb_input_fp3232_t values[4];
};

QPointF WayWith(uint32_t mask, std::initializer_list<xcb_input_fp3232_t> values) {
  Motion motion = {};
  motion.head.valuators_len = 1;
  motion.mask = mask;
  std::copy(values.begin(), values.end(), motion.values);
  return WayOf(motion.head);
}

constexpr uint32_t kQuarter = 0x40000000;  // of 1 << 32

TEST(X11Ways, AreWhatTheDeviceCounted) {
  EXPECT_EQ(WayWith(0b11, {{99, 0}, {77, 0}, {8, 0}, {-3, 0}}), QPointF(8, -3));
}

// -1 and a quarter is -0.75.
TEST(X11Ways, HaveFractions) {
  EXPECT_EQ(WayWith(0b11, {{0, 0}, {0, 0}, {2, kQuarter}, {-1, kQuarter}}), QPointF(2.25, -0.75));
}

TEST(X11Ways, AlongOneAxis) {
  EXPECT_EQ(WayWith(0b01, {{99, 0}, {8, 0}}), QPointF(8, 0));
  EXPECT_EQ(WayWith(0b10, {{99, 0}, {8, 0}}), QPointF(0, 8));
}

// A wheel is a valuator, too.
TEST(X11Ways, OfAWheelAreNone) {
  EXPECT_EQ(WayWith(0b1000, {{15, 0}, {15, 0}}), QPointF());
  EXPECT_EQ(WayWith(0b1001, {{99, 0}, {15, 0}, {8, 0}, {15, 0}}), QPointF(8, 0));
}

// ---- Devices

struct Device {
  xcb_input_xi_device_info_t head;
  char name[4];
  xcb_input_valuator_class_t axes[2];
};

bool TellsWaysWith(uint8_t mode_of_axes, uint16_t number_of_axes) {
  Device device = {};
  device.head.name_len = sizeof device.name;
  device.head.num_classes = number_of_axes;
  for (uint16_t i = 0; i < 2; ++i) {
    device.axes[i].type = XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR;
    device.axes[i].len = sizeof(xcb_input_valuator_class_t) / 4;
    device.axes[i].number = i;
    device.axes[i].mode = mode_of_axes;
  }
  return TellsWays(device.head);
}

TEST(X11Devices, AMouseTellsWays) { EXPECT_TRUE(TellsWaysWith(XCB_INPUT_VALUATOR_MODE_RELATIVE, 2)); }

TEST(X11Devices, ATouchScreenTellsPlaces) { EXPECT_FALSE(TellsWaysWith(XCB_INPUT_VALUATOR_MODE_ABSOLUTE, 2)); }

TEST(X11Devices, AKeyboardTellsNeither) { EXPECT_FALSE(TellsWaysWith(XCB_INPUT_VALUATOR_MODE_RELATIVE, 0)); }

}  // namespace
}  // namespace tavi
