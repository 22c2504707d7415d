#include "core/guest_command.h"

#include "core/line_buffer.h"

namespace taviinputmanager::guest_command {
namespace {

template <typename... Fields>
QString Line(const char* word, Fields... fields) {
  LineBuffer line;
  line.Text(word);
  (line.Field(fields), ...);
  return line.Byte('\n').ToString();
}

// The text stands as it is: the line has no escapes.
QString TextLine(QLatin1String word, const QString& text) {
  QString line;
  line.reserve(word.size() + text.size() + 2);
  return line.append(word).append(QLatin1Char(':')).append(text).append(QLatin1Char('\n'));
}

}  // namespace

// The slot stands twice: as the slot, and as the contact's tracking id.
QString SlotPress(int slot, int x, int y) { return Line("SLOTPRESS", slot, slot, 1, 1, x, y); }
QString SlotRelease(int slot) { return Line("SLOTRELEASE", slot); }
QString SlotReleaseAll() { return Line("SLOTRELEASEALL"); }

QString SlotMultiPress(const Contacts& contacts) {
  LineBuffer line;
  line.Text("SLOTMULTIPRESS");
  for (const Contact& contact : contacts) {
    line.Field(contact.slot).Field(contact.slot).Field(contact.x).Field(contact.y);
  }
  return line.Byte('\n').ToString();
}

QString SlotMultiRelease(const Slots& slots) {
  LineBuffer line;
  line.Text("SLOTMULTIRELEASE");
  for (const int slot : slots) line.Field(slot);
  return line.Byte('\n').ToString();
}

QString KeyPress(int code) { return Line("KBDPR", code, 1); }
QString KeyRelease(int code) { return Line("KBDRL", code, 0); }

QString MouseMove(int x, int y) { return Line("MOUSEMOVE_REL", x, y); }
QString Wheel(int x, int y, int third, int fourth) { return Line("WHEEL", x, y, third, fourth); }
QString WheelWithDelta(int x, int y, double amount) { return Line("WHEEL_WITH_DELTA", x, y, amount, 0); }

QString Text(const QString& text) { return TextLine(QLatin1String("TEXT"), text); }
QString TextControl(const QString& name) { return TextLine(QLatin1String("TEXT_CONTROL"), name); }

QString LeftStickAxis(int x, int y) { return Line("LSTICKAXIS", x, y); }
QString RightStickAxis(int x, int y) { return Line("RSTICKAXIS", x, y); }
QString LeftTriggerAxis(int value) { return Line("LTRIGGERAXIS", value); }
QString RightTriggerAxis(int value) { return Line("RTRIGGERAXIS", value); }
QString GamepadButton(int code, int value) { return Line("GPDBUTTON", code, value); }
QString HatX(int value) { return Line("HATX", value); }
QString HatY(int value) { return Line("HATY", value); }
QString TouchpadLightTouch(int x, int y) { return Line("TOUCHPADLIGHTTOUCH", x, y); }
QString TouchpadPress() { return Line("TOUCHPADPRESS"); }
QString TouchpadRelease() { return Line("TOUCHPADRELEASE"); }

}  // namespace taviinputmanager::guest_command
