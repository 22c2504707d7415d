#include "core/guest_command.h"

#include <gtest/gtest.h>

#include "core/line_buffer.h"

namespace taviinputmanager::guest_command {
namespace {

const struct {
  const char* name;
  QString line;
  const char* expected;
} kForms[] = {
    {"a press carries its slot twice", SlotPress(11, 640, 360), "SLOTPRESS:11:11:1:1:640:360\n"},
    {"coordinates may be negative", SlotPress(2, -3, 0), "SLOTPRESS:2:2:1:1:-3:0\n"},
    {"release", SlotRelease(0), "SLOTRELEASE:0\n"},
    {"release of all", SlotReleaseAll(), "SLOTRELEASEALL\n"},
    {"two contacts in one report", SlotMultiPress({{0, 1, 2}, {10, 3, 4}}), "SLOTMULTIPRESS:0:0:1:2:10:10:3:4\n"},
    {"one contact in a report", SlotMultiPress({{18, 5, 6}}), "SLOTMULTIPRESS:18:18:5:6\n"},
    {"two slots in one release", SlotMultiRelease({0, 10}), "SLOTMULTIRELEASE:0:10\n"},
    {"one slot in a release", SlotMultiRelease({25}), "SLOTMULTIRELEASE:25\n"},
    {"key press", KeyPress(30), "KBDPR:30:1\n"},
    {"key release", KeyRelease(30), "KBDRL:30:0\n"},
    {"pointer", MouseMove(7, 8), "MOUSEMOVE_REL:7:8\n"},
    {"wheel", Wheel(7, 8, -100, 0), "WHEEL:7:8:-100:0\n"},
    {"wheel with delta", WheelWithDelta(7, 8, -150), "WHEEL_WITH_DELTA:7:8:-150:0\n"},
    {"text as it stands", Text(QStringLiteral("a:b\nc")), "TEXT:a:b\nc\n"},
    {"empty text", Text(QString()), "TEXT:\n"},
    {"control", TextControl(QStringLiteral("ENTER")), "TEXT_CONTROL:ENTER\n"},
    {"left stick", LeftStickAxis(-1000000, 500000), "LSTICKAXIS:-1000000:500000\n"},
    {"right stick", RightStickAxis(0, 1), "RSTICKAXIS:0:1\n"},
    {"left trigger", LeftTriggerAxis(1), "LTRIGGERAXIS:1\n"},
    {"right trigger", RightTriggerAxis(0), "RTRIGGERAXIS:0\n"},
    {"gamepad button", GamepadButton(304, 1), "GPDBUTTON:304:1\n"},
    {"hat x", HatX(-1), "HATX:-1\n"},
    {"hat y", HatY(1), "HATY:1\n"},
    {"light touch", TouchpadLightTouch(640, 360), "TOUCHPADLIGHTTOUCH:640:360\n"},
    {"touchpad press", TouchpadPress(), "TOUCHPADPRESS\n"},
    {"touchpad release", TouchpadRelease(), "TOUCHPADRELEASE\n"},
};

TEST(GuestCommand, EveryForm) {
  for (const auto& form : kForms) EXPECT_EQ(form.expected, form.line.toStdString()) << form.name;
}

TEST(GuestCommand, AReportHasNoUpperLength) {
  Contacts contacts;
  QString expected = QStringLiteral("SLOTMULTIPRESS");
  for (int i = 0; i < 200; ++i) {
    contacts.append({i, 1000 + i, 2000 + i});
    expected += QStringLiteral(":%1:%1:%2:%3").arg(i).arg(1000 + i).arg(2000 + i);
  }
  EXPECT_EQ((expected + '\n').toStdString(), SlotMultiPress(contacts).toStdString());
}

TEST(GuestCommand, TextKeepsEveryScript) {
  const QString text = QString::fromUtf8("\xE4\xBD\xA0\xF0\x9F\x98\x80");
  EXPECT_EQ((QStringLiteral("TEXT:") + text + '\n').toStdString(), Text(text).toStdString());
}

TEST(LineBuffer, WritesDoublesAsQtDoes) {
  const double values[] = {0,           -0.0,
                           1,           -1,
                           0.5,         100,
                           1.0 / 3,     2.0 / 3,
                           123456,      1234567,
                           1e6,         1e5,
                           1e-4,        1e-5,
                           9.999995,    0.1234567,
                           1e100,       -1e-100,
                           120.0 * 1.5, 3.14159265,
                           1e21,        999999.5,
                           99999.95,    12345.678,
                           5e-324,      1.7976931348623157e308};
  for (const double value : values) {
    LineBuffer line;
    EXPECT_EQ(QStringLiteral("%1").arg(value).toStdString(), line.Number(value).ToString().toStdString()) << value;
  }
}

TEST(LineBuffer, WritesWhatIsNoNumberAsQtDoes) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {infinity, -infinity, std::nan("")}) {
    LineBuffer line;
    EXPECT_EQ(QStringLiteral("%1").arg(value).toStdString(), line.Number(value).ToString().toStdString());
  }
}

TEST(LineBuffer, WritesEveryInt) {
  for (const int value : {0, -1, 7, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    LineBuffer line;
    EXPECT_EQ(QString::number(value).toStdString(), line.Number(value).ToString().toStdString());
  }
}

}  // namespace
}  // namespace taviinputmanager::guest_command
