// The text of every line that the guest understands. No other file spells one.
//
// Each line ends in a newline, which is part of it. Positions in ints are touch coordinates: integers of the guest's
// unrotated touch surface. Positions in a QPointF are display pixels, with what is behind the point: replays send
// those. A builder makes one QString and allocates nothing else.
#ifndef CORE_GUEST_COMMAND_H_
#define CORE_GUEST_COMMAND_H_

#include <QString>
#include <QVarLengthArray>

class QPointF;
class QStringList;

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
QString SlotPress(int slot, int x, int y);
QString SlotPress(int slot, const QPointF& place);
QString SlotRelease(int slot);
QString SlotReleaseAll();
// Any number of contacts in one report.
QString SlotMultiPress(const Contacts& contacts);
QString SlotMultiRelease(const Slots& slots);
// The same of contacts that are kept as texts, each by ContactGroup.
QString SlotMultiPressOf(const QStringList& groups);
QString ContactGroup(int slot, const QPointF& place);
// The same of slots that stand in a text with colons between them.
QString SlotMultiReleaseOf(const QString& slots);

// `code` is a guest key code. Mouse buttons are keys too.
QString KeyPress(int code);
QString KeyRelease(int code);

// The guest's pointer; absolute in spite of the line's name.
QString MouseMove(int x, int y);
QString MouseMove(const QPointF& place);
// The third field is an amount, or whatever a caller puts there; so is the fourth.
QString Wheel(int x, int y, int third, int fourth);
// Amounts and place are the same numbers here.
QString Wheel(const QPointF& place);
QString WheelWithDelta(int x, int y, double amount);

QString Text(const QString& text);
QString TextControl(const QString& name);

// Sticks in millionths, triggers 0 or 1, hats -1, 0 or 1.
QString LeftStickAxis(int x, int y);
QString RightStickAxis(int x, int y);
QString LeftTriggerAxis(int value);
QString RightTriggerAxis(int value);
QString GamepadButton(int code, int value);
QString HatX(int value);
QString HatY(int value);
QString TouchpadLightTouch(int x, int y);
QString TouchpadPress();
QString TouchpadRelease();

// A line that was kept without its newline.
QString Complete(const QString& command);

}  // namespace taviinputmanager::guest_command

#endif  // CORE_GUEST_COMMAND_H_
