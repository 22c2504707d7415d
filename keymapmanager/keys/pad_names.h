// Names of gamepad buttons: in a file, and by the host.
#ifndef KEYMAPMANAGER_KEYS_PAD_NAMES_H_
#define KEYMAPMANAGER_KEYS_PAD_NAMES_H_

#include <QString>
#include <QStringList>

namespace tavikeymapmanager {

// Precedes the names of a gamepad if keys of all devices are named.
inline const QString kPadPrefix = QStringLiteral("Pad ");

// The host's name of one button: an arrow for `Up`; a name that is not in the table is the host's.
QString PadTextFromName(const QString& name);
QString PadNameFromText(const QString& text);

// The names of the table.
QStringList PadNames();
// Whether a host's name of one button is a usual one: a name of the table, or a number of a button on a gamepad without
// letters.
bool IsUsualPadText(const QString& text);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_PAD_NAMES_H_
