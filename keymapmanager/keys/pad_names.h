// A gamepad's names: what a file calls a button, and what the host does.
#ifndef KEYMAPMANAGER_KEYS_PAD_NAMES_H_
#define KEYMAPMANAGER_KEYS_PAD_NAMES_H_

#include <QString>
#include <QStringList>

namespace tavikeymapmanager {

// Stands before a gamepad's names where keys of all devices are named.
inline const QString kPadPrefix = QStringLiteral("Pad ");

// The host's name of one button: an arrow for `Up`; any name that is not in the table stands for itself.
QString PadTextFromName(const QString& name);
QString PadNameFromText(const QString& text);

// The names of the table.
QStringList PadNames();
// Whether a host's name of one button is among those that gamepads have as a rule: the table's, and the numbers of
// buttons on gamepads without lettering.
bool IsUsualPadText(const QString& text);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_PAD_NAMES_H_
