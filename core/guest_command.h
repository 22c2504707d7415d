// The text of every line for the guest. No other file contains one.
//
// Each line includes its final newline. Positions in ints are touch coordinates: integers of the guest's unrotated
// touch surface. Positions in a QPointF are display pixels with decimals, as replays send them. A line is built on the
// stack and converted to a QString on demand; text lines, which may contain any script, are QStrings from the start.
#ifndef CORE_GUEST_COMMAND_H_
#define CORE_GUEST_COMMAND_H_

#include <QString>
#include <QStringList>
#include <QVarLengthArray>

#include "core/line_buffer.h"

class QPointF;

namespace taviinputmanager::guest_command {

// One contact of a line with several: a slot and a position.
struct Contact {
  int slot;
  int x;
  int y;
};
using Contacts = QVarLengthArray<Contact, 10>;
using Slots = QVarLengthArray<int, 10>;

// Presses or moves a contact.
LineBuffer SlotPress(int slot, int x, int y);
LineBuffer SlotPress(int slot, const QPointF& place);
LineBuffer SlotRelease(int slot);
LineBuffer SlotReleaseAll();
// Any number of contacts in one line.
LineBuffer SlotMultiPress(const Contacts& contacts);
LineBuffer SlotMultiRelease(const Slots& slots);
// The same for contacts that are stored as texts, each from ContactGroup.
QString SlotMultiPressOf(const QStringList& groups);
QString ContactGroup(int slot, const QPointF& place);
// The same for slots in a text, separated by colons.
QString SlotMultiReleaseOf(const QString& slots);

// `code` is a guest key code. Mouse buttons are keys too.
LineBuffer KeyPress(int code);
LineBuffer KeyRelease(int code);

// The guest's pointer; absolute despite the line's name.
LineBuffer MouseMove(int x, int y);
LineBuffer MouseMove(const QPointF& place);
// The third and fourth fields are amounts, or other values that the caller needs.
LineBuffer Wheel(int x, int y, int third, int fourth);
// Amounts and positions are the same numbers here.
LineBuffer Wheel(const QPointF& place);
LineBuffer WheelWithDelta(int x, int y, double amount);

QString Text(const QString& text);
QString TextControl(const QString& name);

// Sticks in millionths, triggers 0 or 1, hats -1, 0 or 1.
LineBuffer LeftStickAxis(int x, int y);
LineBuffer RightStickAxis(int x, int y);
LineBuffer LeftTriggerAxis(int value);
LineBuffer RightTriggerAxis(int value);
LineBuffer GamepadButton(int code, int value);
LineBuffer HatX(int value);
LineBuffer HatY(int value);
LineBuffer TouchpadLightTouch(int x, int y);
LineBuffer TouchpadPress();
LineBuffer TouchpadRelease();

// From a line that was stored without its newline.
QString Complete(const QString& command);

}  // namespace taviinputmanager::guest_command

#endif  // CORE_GUEST_COMMAND_H_
