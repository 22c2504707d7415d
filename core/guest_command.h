// The text of every line that the guest understands. No other file spells one.
//
// Each line ends in a newline, which is part of it. Positions in ints are touch coordinates: integers of the guest's
// unrotated touch surface. Positions in a QPointF are display pixels, with what is behind the point: replays send
// those. A line stands on the stack, and becomes a QString where one is asked for; texts, which may be of any script,
// are QStrings from the start.
#ifndef CORE_GUEST_COMMAND_H_
#define CORE_GUEST_COMMAND_H_

#include <QString>
#include <QStringList>
#include <QVarLengthArray>

#include "core/line_buffer.h"

class QPointF;

namespace taviinputmanager::guest_command {

// One contact of a report of several: a slot and where it is.
struct Contact {
  int slot;
  int x;
  int y;
};
using Contacts = QVarLengthArray<Contact, 10>;
using Slots = QVarLengthArray<int, 10>;

// Puts a contact down or moves it.
LineBuffer SlotPress(int slot, int x, int y);
LineBuffer SlotPress(int slot, const QPointF& place);
LineBuffer SlotRelease(int slot);
LineBuffer SlotReleaseAll();
// Any number of contacts in one report.
LineBuffer SlotMultiPress(const Contacts& contacts);
LineBuffer SlotMultiRelease(const Slots& slots);
// The same of contacts that are kept as texts, each by ContactGroup.
QString SlotMultiPressOf(const QStringList& groups);
QString ContactGroup(int slot, const QPointF& place);
// The same of slots that stand in a text with colons between them.
QString SlotMultiReleaseOf(const QString& slots);

// `code` is a guest key code. Mouse buttons are keys too.
LineBuffer KeyPress(int code);
LineBuffer KeyRelease(int code);

// The guest's pointer; absolute in spite of the line's name.
LineBuffer MouseMove(int x, int y);
LineBuffer MouseMove(const QPointF& place);
// The third field is an amount, or whatever a caller puts there; so is the fourth.
LineBuffer Wheel(int x, int y, int third, int fourth);
// Amounts and place are the same numbers here.
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

// A line that was kept without its newline.
QString Complete(const QString& command);

}  // namespace taviinputmanager::guest_command

#endif  // CORE_GUEST_COMMAND_H_
