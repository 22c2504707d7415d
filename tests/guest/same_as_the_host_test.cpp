// The guest's own data agrees with the library, its program and the kernel's names.
#include <gtest/gtest.h>
#include <libevdev/libevdev.h>
#include <random>
#include <string>

#include <QString>

#include "guest/line/guest_line.h"
#include "guest/line/utf8.h"
#include "guest/translation/device_description.h"
#include "guest/translation/event_names.h"
#include "guest/translation/scan_codes.h"
#include "host/guest/guest_line.h"
#include "host/guest/guest_model.h"
#include "keymap/scan_codes.h"

namespace taviguest {
namespace {

// The host uses the guest's parser, but converts its text from a QString.
void CompareLine(const std::string& text) {
  SCOPED_TRACE(text);
  const tavi::GuestLine theirs = tavi::ParseGuestLine(QString::fromStdString(text));
  const GuestLine ours = ParseGuestLine(text);
  ASSERT_EQ(static_cast<int>(ours.kind), static_cast<int>(theirs.kind));
  EXPECT_EQ(QVector<double>(ours.numbers.begin(), ours.numbers.end()), theirs.numbers);
  EXPECT_EQ(ours.text, theirs.text.toStdString());
  for (int i = 0; i + 1 < theirs.numbers.size(); ++i) {
    const auto index = static_cast<size_t>(i);
    EXPECT_EQ(ours.Integer(index), theirs.Integer(i));
    EXPECT_EQ(QPoint(ours.PointAt(index).x, ours.PointAt(index).y), theirs.PointAt(i));
  }
  const tavi::AddressedLine addressed = tavi::SplitDisplay(QString::fromStdString(text));
  EXPECT_EQ(SplitDisplay(text).display, addressed.display);
  EXPECT_EQ(std::string(SplitDisplay(text).line), addressed.line.toStdString());
}

TEST(SameAsTheHost, LinesAreTakenApartAlike) {
  const std::string words[] = {"SLOTPRESS",
                               "SLOTRELEASE",
                               "SLOTRELEASEALL",
                               "SLOTMULTIPRESS",
                               "SLOTMULTIRELEASE",
                               "KBDPR",
                               "KBDRL",
                               "MOUSEMOVE_REL",
                               "WHEEL",
                               "WHEEL_WITH_DELTA",
                               "TEXT",
                               "TEXT_CONTROL",
                               "LSTICKAXIS",
                               "RSTICKAXIS",
                               "LTRIGGERAXIS",
                               "RTRIGGERAXIS",
                               "GPDBUTTON",
                               "HATX",
                               "HATY",
                               "TOUCHPADLIGHTTOUCH",
                               "TOUCHPADPRESS",
                               "TOUCHPADRELEASE",
                               "SLOTMOVE",
                               "",
                               "12"};
  const std::string fields[] = {"0",     "1",   "1", "0",  "30", "-100", "640.5", "-0.5",
                                "1e+06", "3e9", "",  " 1", "+2", "x",    "inf"};
  std::mt19937 random(4);
  for (int i = 0; i < 40'000; ++i) {
    std::string line = words[random() % std::size(words)];
    for (size_t count = random() % 9; count > 0; --count) line += ':' + fields[random() % std::size(fields)];
    CompareLine(line);
    if (HasFailure()) return;
  }
}

TEST(SameAsTheHost, BytesThatAreNoTextReadAlike) {
  std::mt19937 random(5);
  const std::string parts[] = {"a",
                               "\xC3",
                               "\xA9",
                               "\xE2",
                               "\x88",
                               "\x92",
                               "\xF0",
                               "\x9F",
                               "\x98",
                               "\x80",
                               "\xED\xA0\x80",
                               "\xC0\x80",
                               "\xF4\x90\x80\x80",
                               "\xEF\xBB\xBF",
                               "\xEF\xBF\xBF",
                               "\xFF",
                               "\xF8"};
  for (int i = 0; i < 40'000; ++i) {
    std::string bytes;
    for (size_t count = random() % 8; count > 0; --count) bytes += parts[random() % std::size(parts)];
    ASSERT_EQ(ValidUtf8(bytes), QString::fromUtf8(bytes.c_str()).toStdString());
  }
}

TEST(SameAsTheHost, TheScreenHasAsManySlots) { EXPECT_EQ(kSlotCount, tavi::kGuestSlotCount); }

TEST(SameAsTheHost, ExtendedScanCodesAreTheSameKeys) {
  for (int code = 0x100; code < 0x400; ++code) {
    EXPECT_EQ(KeyOfExtendedScanCode(code), tavikeymapmanager::LinuxKeyOfScanCode(code)) << code;
  }
}

// All codes that a device has, and the report.
TEST(SameAsTheHost, EventsAreCalledAsTheKernelCallsThem) {
  const auto compare = [](int type, int code) {
    const char* name = libevdev_event_code_get_name(static_cast<unsigned>(type), static_cast<unsigned>(code));
    EXPECT_EQ(EventCodeText(type, code), name ? name : std::to_string(code));
    EXPECT_EQ(EventTypeText(type), libevdev_event_type_get_name(static_cast<unsigned>(type)));
  };
  compare(EV_SYN, SYN_REPORT);
  for (const GuestSystem system : {GuestSystem::kLinux, GuestSystem::kAndroid}) {
    GuestOptions options;
    options.system = system;
    for (const KernelDevice device : kKernelDevices) {
      const DeviceDescription description = DescribeDevice(device, options);
      for (const int key : description.keys) compare(EV_KEY, key);
      for (const int axis : description.relative_axes) compare(EV_REL, axis);
      for (const AbsoluteAxis& axis : description.absolute_axes) compare(EV_ABS, axis.code);
    }
  }
}

}  // namespace
}  // namespace taviguest
