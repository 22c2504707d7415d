#include "core/guest_command.h"

#include <cmath>

#include <QPointF>
#include <QStringList>

#include "core/guest_words.h"

namespace taviinputmanager::guest_command {
namespace {

template <typename... Values>
LineBuffer Line(QLatin1String word, Values... values) {
  LineBuffer line;
  line.Line(word, values...);
  return line;
}

// The text is unchanged: lines have no escapes.
QString TextLine(QLatin1String word, const QString& text) {
  QString line;
  line.reserve(word.size() + text.size() + 2);
  return line.append(word).append(QLatin1Char(':')).append(text).append(QLatin1Char('\n'));
}

}  // namespace

// The slot appears twice: as the slot, and as the contact's tracking id.
LineBuffer SlotPress(int slot, int x, int y) { return Line(guest_words::kSlotPress, slot, slot, 1, 1, x, y); }
LineBuffer SlotPress(int slot, const QPointF& place) {
  return Line(guest_words::kSlotPress, slot, slot, 1, 1, place.x(), place.y());
}
LineBuffer SlotRelease(int slot) { return Line(guest_words::kSlotRelease, slot); }
LineBuffer SlotReleaseAll() { return Line(guest_words::kSlotReleaseAll); }

LineBuffer SlotMultiPress(const Contacts& contacts) {
  LineBuffer line;
  line.Text(guest_words::kSlotMultiPress);
  for (const Contact& contact : contacts) {
    line.Fields(contact.slot, contact.slot, contact.x, contact.y);
  }
  line.Byte('\n');
  return line;
}

QString SlotMultiPressOf(const QStringList& groups) {
  QString line = guest_words::kSlotMultiPress;
  for (const QString& group : groups) line.append(QLatin1Char(':')).append(group);
  return line.append(QLatin1Char('\n'));
}

QString ContactGroup(int slot, const QPointF& place) {
  LineBuffer group;
  return group.Number(slot).Fields(slot, place.x(), place.y()).ToString();
}

LineBuffer SlotMultiRelease(const Slots& slots) {
  LineBuffer line;
  line.Text(guest_words::kSlotMultiRelease);
  for (const int slot : slots) line.Fields(slot);
  line.Byte('\n');
  return line;
}

QString SlotMultiReleaseOf(const QString& slots) { return TextLine(guest_words::kSlotMultiRelease, slots); }

LineBuffer KeyPress(int code) { return Line(guest_words::kKeyPress, code, 1); }
LineBuffer KeyRelease(int code) { return Line(guest_words::kKeyRelease, code, 0); }

LineBuffer MouseMove(int x, int y) { return Line(guest_words::kMouseMove, x, y); }
LineBuffer MouseMove(const QPointF& place) { return Line(guest_words::kMouseMove, place.x(), place.y()); }
LineBuffer Wheel(int x, int y, int third, int fourth) { return Line(guest_words::kWheel, x, y, third, fourth); }
LineBuffer Wheel(const QPointF& place) {
  return Line(guest_words::kWheel, std::abs(place.x()), std::abs(place.y()), place.x(), place.y());
}
LineBuffer WheelWithDelta(int x, int y, double amount) { return Line(guest_words::kWheelWithDelta, x, y, amount, 0); }

QString Text(const QString& text) { return TextLine(guest_words::kText, text); }
QString TextControl(const QString& name) { return TextLine(guest_words::kTextControl, name); }

LineBuffer LeftStickAxis(int x, int y) { return Line(guest_words::kLeftStickAxis, x, y); }
LineBuffer RightStickAxis(int x, int y) { return Line(guest_words::kRightStickAxis, x, y); }
LineBuffer LeftTriggerAxis(int value) { return Line(guest_words::kLeftTriggerAxis, value); }
LineBuffer RightTriggerAxis(int value) { return Line(guest_words::kRightTriggerAxis, value); }
LineBuffer GamepadButton(int code, int value) { return Line(guest_words::kGamepadButton, code, value); }
LineBuffer HatX(int value) { return Line(guest_words::kHatX, value); }
LineBuffer HatY(int value) { return Line(guest_words::kHatY, value); }
LineBuffer TouchpadLightTouch(int x, int y) { return Line(guest_words::kTouchpadLightTouch, x, y); }
LineBuffer TouchpadPress() { return Line(guest_words::kTouchpadPress); }
LineBuffer TouchpadRelease() { return Line(guest_words::kTouchpadRelease); }

QString Complete(const QString& command) { return command + QLatin1Char('\n'); }

}  // namespace taviinputmanager::guest_command
