#ifndef HOST_SESSION_KEY_COMBINATION_H_
#define HOST_SESSION_KEY_COMBINATION_H_

#include <QString>
#include <QVector>
#include <Qt>

class QKeyEvent;

namespace tavi {

// A key of the keyboard and its modifiers, which the window reserves for itself: "Ctrl+Alt+Backspace".
struct KeyCombination {
  // Whether the event is one of this key while the modifiers are held. Further modifiers do not matter: a running
  // player holds one.
  bool Matches(const QKeyEvent& event) const;
  bool IsKeyOf(const QKeyEvent& event) const;

  QString name;      // as the user wrote it, for display
  int scancode = 0;  // Windows scan code, the extended bit as 0x100
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

// The name of a modifier and the scan codes of its keys.
struct ModifierKeys {
  QString name;
  QVector<int> scancodes;
};

// The modifiers of the combination, in the order of their names.
QVector<ModifierKeys> ModifiersOf(const KeyCombination& combination);

// Parses modifiers (Ctrl, Alt, Shift, Meta) and a key name as in keymaps, joined by "+". Returns the error, or an empty
// string.
QString ParseKeyCombination(const QString& text, KeyCombination* combination);

}  // namespace tavi

#endif  // HOST_SESSION_KEY_COMBINATION_H_
